#pragma once
#include <QString>
#include <functional>
#include <optional>

#include "conversion_settings.h"

// Why a conversion cannot start, as the message box shows it.
struct StartProblem {
    bool critical = false;
    QString title;
    QString text;
};

struct StartCheckContext {
    bool converting = false;
    int fileCount = 0;
    // Finds the engine (the kept path first); empty when there is none.
    std::function<QString()> locateEngine;
};

// The start button's checks, in the order a user meets them. Creates the
// output folder in folder mode (a folder that cannot be made is a problem).
std::optional<StartProblem> checkConversionStart(const StartCheckContext& context,
                                                 const ConversionSettings& settings);

// The output extension a run will get, lower-cased with its dot.
QString outputExtension(const ConversionSettings& settings);

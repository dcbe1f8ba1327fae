#pragma once
// Strict number parsing for option values: the whole text must be a number.
#include <string>

namespace zuvo::cli {

bool parseInt(const std::string& text, long long& out);
bool parseDouble(const std::string& text, double& out);
bool isNumber(const std::string& text);

} // namespace zuvo::cli

#pragma once
// Why an option of the refused table is refused, where there is more to say
// than "not in this version": the line printed under the refusal.

#include <string>

namespace zuvo::cli {

// Empty when there is no particular reason to give.
std::string refusalReason(const std::string& option);

} // namespace zuvo::cli

#pragma once
// Command-line forms of the restoration and mastering options, turned into
// a RestoreOptions record. Numbers go through the engine's locale-independent
// parser.

#include <cstddef>
#include <string>
#include <vector>

#include "restore/restore_options.h"

namespace zuvo::restore {

// When args[i] is a restoration option: consumes its value (moving `i` to
// it), records problems in `errors` and returns true.
bool parseRestoreOption(const std::vector<std::string>& args, std::size_t& i, RestoreOptions& o,
                        std::vector<std::string>& errors);

// Once the whole line is read: fills in the mastering set and checks
// between options.
void finishRestoreOptions(RestoreOptions& o, bool forwardMode, std::vector<std::string>& errors,
                          std::vector<std::string>& warnings);

} // namespace zuvo::restore

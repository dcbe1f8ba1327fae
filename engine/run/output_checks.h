#pragma once
// Checks on the output path made before anything is written.
#include <string>

namespace zuvo::run {

// True when both paths name the same file (same inode, or the same canonical
// path for an output that does not exist yet).
bool sameFile(const std::string& a, const std::string& b);
// The output's folder must exist; the message names it when it does not.
bool outputFolderExists(const std::string& output, std::string* error);

} // namespace zuvo::run

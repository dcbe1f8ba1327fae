#pragma once
// Checks on the output path made before anything is written.
#include <string>
#include <vector>

namespace zuvo::run {

// True when both paths name the same file (same inode, or the same canonical
// path for an output that does not exist yet).
bool sameFile(const std::string& a, const std::string& b);
// A log file (--log-file) that is one of the inputs or the output would get
// log text appended to audio. Returns the clashing path, empty when none.
std::string logFileClash(const std::string& logFile, const std::vector<std::string>& inputs,
                         const std::string& output);
// The output's folder must exist; the message names it when it does not.
bool outputFolderExists(const std::string& output, std::string* error);

} // namespace zuvo::run

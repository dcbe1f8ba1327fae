#pragma once
// Reading a file's kind from its name: the readers, the writers and the
// output checks all decide by extension and must agree on what one is.
#include <string>

namespace zuvo::io {

// Lower-cased extension with its dot, "" when there is none (a dot in a
// folder name does not count).
std::string lowerExtension(const std::string& path);

} // namespace zuvo::io

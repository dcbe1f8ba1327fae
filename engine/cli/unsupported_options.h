#pragma once
// Options the front-end can send that this version does not implement, with
// the shape of the values that follow each, so that a refused option's
// values are skipped and never mistaken for the output path.

#include <string>
#include <vector>

namespace zuvo::cli {

enum class ValueShape {
    None,           // a switch
    One,            // exactly one value
    Two,
    Three,
    Five,
    OptionalNumber, // one value only when it is a number
    OptionalApo,    // light | normal | aggressive, optional
    OptionalAlbum,  // "album", optional
    Numbers,        // every following number
    Crossfeed,      // profile, and two numbers after "custom"
    Surround,       // delay, mix, optional "side", optional balance
};

// Returns true and the shape when `name` is a known but unimplemented option.
bool lookupUnsupported(const std::string& name, ValueShape& shape);

// Every known but unimplemented option, in table order.
std::vector<std::string> unsupportedOptionNames();

// Number of arguments after position `i` that belong to an option of this
// shape (never more than are left).
std::size_t valueCount(ValueShape shape, const std::vector<std::string>& args, std::size_t i);

} // namespace zuvo::cli

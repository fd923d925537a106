#pragma once

#include <string>

namespace VX {

class VXValue;

/// Appends what VXValue::dump() gives to a text.
void appendDump(std::string& text, const VXValue& value, int verbosity);

} // namespace VX

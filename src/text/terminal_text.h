#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// A line as it can be shown on a terminal without giving it orders: control characters, of which a
/// data file may hold any, are written as "\x1B" (the byte in hexadecimal), so that no value can
/// move the cursor, change a line that is shown or look like a line of its own. Tabs, and letters
/// in UTF-8 or a single-byte code page, stay.
std::string TerminalText(std::string_view line);

}  // namespace quorvane

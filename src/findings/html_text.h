#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// Appends UTF-8 text to a page so that it is shown as what it is: it stands safely between tags
/// (not in an attribute: quotes stay as they are), and nothing in it stays unseen or turns what
/// stands beside it. Control characters become their symbols (U+2400 and on). Characters that
/// cannot be seen or that order the direction of writing become their number in brackets
/// ("[U+202E]"). Bytes that are no UTF-8 become U+FFFD.
void AppendHtmlText(std::string& page, std::string_view text);

/// The same for a text of several lines with CR LF between them: each break becomes a <br>.
void AppendHtmlLines(std::string& page, std::string_view text);

}  // namespace quorvane

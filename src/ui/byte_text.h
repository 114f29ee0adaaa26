#pragma once

#include <string>
#include <string_view>

#include <QString>

namespace quorvane {

/// A text of the core as the window shows it: sequences that are valid UTF-8 as such, every other
/// byte as Windows-1252 has it. Characters that would disturb the display (control characters other
/// than tab and line ends, marks that turn the direction of writing) have visible stand-ins.
QString ShownText(std::string_view text);

/// A path, or several on lines of their own, as text that can be edited. Paths are UTF-8; bytes
/// that are not become unpaired surrogates, so that PathBytes gives back what came in.
QString PathText(std::string_view path);

/// The path that a text names.
std::string PathBytes(const QString& text);

}  // namespace quorvane

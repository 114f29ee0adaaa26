#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// What every report page carries: how it looks, and what makes its controls work. Both are made
/// from the files of that name in html_page when the system is built.
extern const std::string_view HtmlStyle;
extern const std::string_view HtmlScript;

/// The words of a page's policy by which it may run this style or script, and no other:
/// "'sha256-...'".
std::string PolicySource(std::string_view content);

}  // namespace quorvane

#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// The SHA-256 of some bytes, as 64 hexadecimal digits in lower case.
std::string Sha256(std::string_view bytes);

}  // namespace quorvane

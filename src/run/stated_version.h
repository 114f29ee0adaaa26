#pragma once

#include <string>

#include "parse/file_text.h"

namespace quorvane {

/// The version that an AGS 4 file states: the value under TRAN_AGS in the first data row of its
/// first TRAN group, trimmed. Empty when there is none. The rows must still bear their labels; none
/// behind that group is looked at.
std::string StatedVersion(const FileText& file);

}  // namespace quorvane

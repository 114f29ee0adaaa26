#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "report/disk.h"

namespace quorvane {

/// Replaces a file's content by two texts, one behind the other. A regular file, or one that is not
/// there yet, gets its new content at once: it is written under another name in the same folder and
/// takes the file's place when it is complete, so that after a failure the file is as it was
/// before. Links are followed and permissions kept. Where a file cannot be replaced in this way (a
/// device or a pipe, a folder that takes no new files, a file with several names or of another
/// owner) it is written directly. Nothing on success.
std::optional<FileFailure> ReplaceFileContent(const std::filesystem::path& path,
                                              std::string_view text, std::string_view ending);

}  // namespace quorvane

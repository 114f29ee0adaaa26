#pragma once

#include <optional>

#include "parse/file_text.h"
#include "report/message.h"

namespace quorvane {

/// The version of a data file as its lines show it.
struct DetectedVersion {
  AgsFormat format = AgsFormat::Ags3;
  bool isAgs404 = false;  // "4.0.4" stands somewhere behind the first TRAN_AGS
};

/// Decides the version by the texts that begin lines, in any letter case; nothing when the file is
/// neither AGS 3 nor AGS 4.
std::optional<DetectedVersion> DetectVersion(const FileText& file);

}  // namespace quorvane

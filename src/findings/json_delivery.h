#pragma once

#include <nlohmann/json_fwd.hpp>
#include <vector>

#include "findings/findings_report.h"

namespace quorvane {

/// What a run says of a whole delivery, as JSON: "waivers", "comparison" and "unnamedFiles" are
/// added to the object, each when it was asked for.
void AddDeliveryMembers(nlohmann::ordered_json& object, const FindingsReport& report);

/// Whether there are associated files of a data file that were looked for.
bool WereLookedFor(const std::vector<AssociatedFile>& files);

/// Each of them with its state: "there", "in-other-case", "missing" or "no-file-name".
nlohmann::ordered_json AssociatedFilesArray(const std::vector<AssociatedFile>& files);

}  // namespace quorvane

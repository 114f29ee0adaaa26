#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "findings/findings_report.h"
#include "report/disk.h"
#include "report/user_interface.h"

namespace quorvane {

class FilePickers;

/// A format in which the window saves findings.
struct FindingsWriter {
  std::string_view filter;  // for the dialog: "NAME (*.csv)|*.csv"
  std::string_view suffix;  // of its files: ".csv"
  std::string (*write)(const FindingsReport& report) = nullptr;
};

using FindingsWriters = std::vector<FindingsWriter>;

/// Saves a whole report where the user wants it, in the format that the name's suffix says, else in
/// the one that was chosen in the dialog. A box says when that fails.
void SaveFindings(Disk& disk, UserMessages& messages, FilePickers& pickers,
                  const FindingsWriters& writers, const FindingsReport& report);

}  // namespace quorvane

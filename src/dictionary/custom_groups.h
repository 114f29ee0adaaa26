#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "dictionary/ags_dictionary.h"
#include "dictionary/parent_choice.h"
#include "dictionary/parent_index.h"
#include "parse/file_text.h"
#include "report/message_log.h"

namespace quorvane {

/// The headings that a file's DICT group adds to standard groups, by group name, in DICT order.
using AddedHeadings = std::unordered_map<std::string, std::vector<std::string>>;

/// What the dictionary entries of a file's own groups are made from, and where they go. Everything
/// referred to must outlive the call.
struct CustomGroupTask {
  const FileText& text;  // AGS 4 rows already in the common form
  AgsFormat format;
  std::string_view path;         // names the file where a choice must be made
  AgsDictionary& dictionary;     // the copy that belongs to this file
  AddedHeadings& addedHeadings;  // filled for AGS 4 files
  MessageLog& log;               // muted while the DICT group is read ahead of the parse
  ParentChoice& parentChoice;
};

/// Adds to a file's dictionary what the file's first DICT group defines: groups that the dictionary
/// does not know, key headings of standard groups, added headings. Then every group of the
/// dictionary without a parent is given one where its key tells which. A file without a DICT group
/// leaves the dictionary as it is.
///
/// When it fails with an exception, the groups made so far stay in the dictionary.
void BuildCustomGroupProps(const CustomGroupTask& task);

/// Sets the parent of a dictionary group to the best candidate; of several the user chooses. The
/// group stays without a parent when there is none. The index must be of the task's dictionary.
void FindCustomParent(const CustomGroupTask& task, ParentIndex& index, int group);

}  // namespace quorvane

#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "dictionary/ags_dictionary.h"
#include "parse/file_text.h"
#include "parse/group_table.h"
#include "report/message_log.h"

namespace quorvane {

/// A heading that the dictionary does not know in a group that it knows.
struct NonStandardHeading {
  int group = 0;
  std::string heading;  // without its leading "?"
};

/// A "?" heading that does not begin with the name of its own group: whether it may is decided when
/// the whole file is known.
struct DeferredHeading {
  std::string heading;  // without its leading "?"
  int group = 0;
  int column = 0;
  std::int32_t lineNumber = 0;
};

/// The first group of each name that may occur only once; 0 for a group that the file does not
/// have.
struct SingletonGroups {
  int abbr = 0;
  int code = 0;
  int dict = 0;
  int file = 0;
  int proj = 0;
  int unit = 0;
  int type = 0;
  int tran = 0;
};

/// What the checks of one file read and what they leave for those that come after them. It is made
/// anew for every file.
struct CheckedFile {
  CheckedFile(const FileText& fileText, AgsFormat fileFormat, AgsDictionary fileDictionary,
              MessageLog& messageLog)
      : text(fileText),
        format(fileFormat),
        dictionary(std::move(fileDictionary)),
        table(fileText),
        log(messageLog) {}

  bool IsAgs4() const { return format == AgsFormat::Ags4; }

  const FileText& text;
  const AgsFormat format;
  AgsDictionary dictionary;  // with the groups that the file defines for itself
  GroupTable table;
  MessageLog& log;

  /// A dictionary was named for the run: types and units are compared with it.
  bool isDictionaryNamed = false;

  // Left by the name rules.
  std::vector<int> NonStandardGroupList;  // an AGS 4 group may be in it twice
  std::vector<NonStandardHeading> NonStandardHeadingList;
  std::vector<DeferredHeading> HeadingPrefixList;
  SingletonGroups singletons;
  std::vector<int> CnmtGroupList;
  std::vector<int> IccGroupList;

  /// The headings that the file's DICT group adds to standard groups, by group name (AGS 4).
  std::unordered_map<std::string, std::vector<std::string>> addedHeadings;

  // Left by the checks of the PROJ and TRAN groups.
  std::string versionText;  // the version that the file states; "3" or "4" when it states none
  bool isRtaEdition = false;
  bool isNzEdition = false;
  std::string delimiter;
  std::string concatenator;

  // Left by the type and unit checks when a dictionary was named.
  std::string TypeDifferences;
  std::string UnitDifferences;
};

}  // namespace quorvane

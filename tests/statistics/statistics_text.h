#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "support/check_text.h"
#include "text/text.h"

namespace quorvane::test {

using Rows = std::vector<std::vector<std::string>>;

inline CheckSettings WithStatistics() {
  CheckSettings settings;
  settings.showStatistics = true;
  return settings;
}

/// The statistics of the last file of a log, with LF for CR LF; empty when there are none.
inline std::string LastStatistics(std::string_view log) {
  const std::size_t start = log.rfind("DATA STATISTICS\r\n");
  return start == std::string_view::npos ? "" : ReplaceAll(log.substr(start), LineBreak, "\n");
}

inline std::string StatisticsOf(const std::string& text) {
  return LastStatistics(CheckText(text, WithStatistics()).log);
}

inline constexpr std::string_view Preamble =
    "DATA STATISTICS\n"
    "These statistics must NOT be relied upon for measurement purposes.\n"
    "Use them as one source of information that needs to be cross checked with other sources.\n";
inline constexpr std::string_view ClosingLine = "***************************************\n\n";

/// One numbered section: from its title to the empty line before the next.
inline std::string Section(const std::string& statistics, std::string_view title) {
  const std::size_t start = statistics.find(". " + std::string(title) + "\n");
  if (start == std::string::npos) return "no such section";
  const std::size_t text = statistics.find('\n', start) + 1;
  const std::size_t end =
      std::min(statistics.find("\n\n", text - 1) + 1, statistics.find(ClosingLine, text));
  return statistics.substr(text, end - text);
}

inline constexpr std::string_view LocationsTitle = "List of HOLE_IDs in the file.";
inline constexpr std::string_view CountsTitle = "Number of records in each group with data.";
inline constexpr std::string_view HolesTitle =
    "Number of holes of each type with total drilling length.";
inline constexpr std::string_view SamplesTitle = "Number of samples of each type.";
inline constexpr std::string_view GeometryTitle = "Site Geometry";
inline constexpr std::string_view TestsTitle = "Number of Index tests in CLSS group.";
inline constexpr std::string_view GeolTitle = "Holes with no data in 'GEOL' group.";
inline constexpr std::string_view SampTitle = "Holes with no data in 'SAMP' group.";
inline constexpr std::string_view MissingTitle =
    "Groups with no data or standard AGS groups missing from file.";

inline Ags3File Project() {
  Ags3File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_NAME", "PROJ_AGS"}, {"", "", ""},
             {{"P1", "Test project", "3.1"}});
  return file;
}

/// An AGS 3 file with one group of holes that has these headings and rows.
inline std::string HolesText(const std::vector<std::string>& headings, const Rows& rows) {
  return Project().Group("HOLE", headings, std::vector<std::string>(headings.size()), rows).Text();
}

}  // namespace quorvane::test

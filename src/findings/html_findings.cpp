#include "findings/html_findings.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>
#include <vector>

#include "findings/html_page.h"
#include "findings/html_summary.h"
#include "findings/html_text.h"
#include "findings/row_layout.h"
#include "text/number.h"

namespace quorvane {
namespace {

constexpr std::array<Severity, 4> Severities{Severity::Error, Severity::Warning, Severity::Fyi,
                                             Severity::Plain};

/// A section's findings stand in lists of this length, of which a browser lays out only those that
/// are in sight. The script makes lists of the same length.
constexpr std::size_t LongestList = 200;

/// The word for a severity as people read it.
std::string_view SeverityLabel(Severity severity) {
  switch (severity) {
    case Severity::Error:
      return "ERROR";
    case Severity::Warning:
      return "WARNING";
    case Severity::Fyi:
      return "FYI";
    case Severity::Plain:
      break;
  }
  return "REMARK";
}

std::int64_t CountOf(const SeverityCounts& counts, Severity severity) {
  switch (severity) {
    case Severity::Error:
      return counts.errors;
    case Severity::Warning:
      return counts.warnings;
    case Severity::Fyi:
      return counts.fyis;
    case Severity::Plain:
      break;
  }
  return counts.plain;
}

/// Writes the line that a finding is about, folded away under it.
class HtmlLineWriter {
 public:
  HtmlLineWriter(std::string& page, const FileRecord& file, std::size_t fileIndex)
      : page_(page),
        file_(file),
        idStart_("line-" + std::to_string(fileIndex + 1) + "-"),
        isWritten_(file.lines.size()),
        hasCells_(file.findings.size() <= MostFindingsWithCells) {}

  bool HasCells() const { return hasCells_; }

  /// Nothing when the finding is about no line of the file.
  void Append(const FindingRecord& finding) {
    const LineRecord* line = file_.FindLine(finding.line);
    if (line == nullptr) return;
    const auto place = static_cast<std::size_t>(line - file_.lines.data());
    if (!hasCells_) {
      AppendPlainLine(*line, isWritten_[place]);
    } else if (isWritten_[place]) {
      AppendReference(finding, *line);
    } else {
      AppendLine(finding, *line);
    }
    isWritten_[place] = true;
  }

 private:
  std::string LineId(const LineRecord& line) const { return idStart_ + std::to_string(line.line); }

  bool IsLaidOut(const FindingRecord& finding) const {
    return finding.isUnderHeadings && file_.format.has_value();
  }

  std::vector<RowCell> LayOut(const FindingRecord& finding, const LineRecord& line) const {
    return LayOutRow(file_, finding, SingleLine(line.line, line.text)).cells;
  }

  void AppendSummary(const LineRecord& line) {
    page_.append("<summary>Line ").append(std::to_string(line.line)).append("</summary>");
  }

  /// As little as can be, for files with so many findings that every element counts: a line that
  /// does not fold, or where it stands.
  void AppendPlainLine(const LineRecord& line, bool isWritten) {
    const std::string id = LineId(line);
    if (isWritten) {
      page_.append("<a href=\"#").append(id).append("\">The whole line</a>");
      return;
    }
    page_.append("<pre id=\"").append(id).append("\">");
    AppendHtmlText(page_, line.text);
    page_.append("</pre>");
    AppendCutNote(line);
  }

  void AppendCutNote(const LineRecord& line) {
    if (line.isCut) page_.append("<p>The line is longer than what is shown of it.</p>");
  }

  /// The whole line; other findings of it refer to it by its id.
  void AppendLine(const FindingRecord& finding, const LineRecord& line) {
    page_.append("<details>");
    AppendSummary(line);
    page_.append("<div id=\"").append(LineId(line)).append("\"><pre>");
    AppendHtmlText(page_, line.text);
    page_.append("</pre>");
    AppendCutNote(line);
    if (IsLaidOut(finding)) AppendCells(finding, line);
    page_.append("</div></details>");
  }

  /// What stands in the place of a line that was written before: the finding's own cell. The script
  /// puts the whole line there when it is unfolded.
  void AppendReference(const FindingRecord& finding, const LineRecord& line) {
    const std::string id = LineId(line);
    page_.append("<details data-line=\"").append(id);
    if (finding.column != 0)
      page_.append("\" data-cell=\"").append(std::to_string(finding.heading));
    page_.append("\">");
    AppendSummary(line);
    page_.append("<div>");
    if (IsLaidOut(finding) && finding.column != 0) AppendOwnCell(finding, line);
    page_.append("<p>The whole line is shown with <a href=\"#");
    page_.append(id).append("\">its first finding</a>.</p></div></details>");
  }

  void AppendCells(const FindingRecord& finding, const LineRecord& line) {
    const bool isHead = IsHeadLine(*file_.format, line.text);
    const std::vector<RowCell> cells = LayOut(finding, line);
    if (cells.empty()) return;
    AppendTableHead(isHead);
    for (std::size_t index = 0; index < cells.size(); ++index) {
      // What the line does not hold is told only where it is known to be missing.
      if (!cells[index].isThere && (isHead || line.isCut)) continue;
      AppendCellRow(cells[index], IsCellOf(finding, index));
    }
    page_.append("</tbody></table>");
  }

  void AppendOwnCell(const FindingRecord& finding, const LineRecord& line) {
    const auto index = static_cast<std::size_t>(finding.heading - 1);
    const std::vector<RowCell> cells = LayOut(finding, line);
    if (index >= cells.size()) return;
    AppendTableHead(IsHeadLine(*file_.format, line.text));
    AppendCellRow(cells[index], true);
    page_.append("</tbody></table>");
  }

  static bool IsCellOf(const FindingRecord& finding, std::size_t index) {
    return finding.column != 0 && static_cast<std::size_t>(finding.heading) == index + 1;
  }

  bool HasTypes() const { return file_.format == AgsFormat::Ags4; }

  void AppendTableHead(bool isHeadLine) {
    page_.append(
        "<table class=\"cells\"><thead><tr><th scope=\"col\">Heading<th scope=\"col\">Unit");
    if (HasTypes()) page_.append("<th scope=\"col\">Type");
    page_.append("<th scope=\"col\">").append(isHeadLine ? "In this line" : "Value");
    page_.append("</thead><tbody>");
  }

  void AppendCellRow(const RowCell& cell, bool isInQuestion) {
    page_.append(isInQuestion ? "<tr aria-current=\"true\">" : "<tr>").append("<th scope=\"row\">");
    if (cell.heading.empty()) {
      page_.append("<i>no heading</i>");
    } else {
      AppendHtmlText(page_, cell.heading);
    }
    page_.append("<td>");
    AppendHtmlText(page_, cell.unit);
    if (HasTypes()) {
      page_.append("<td>");
      AppendHtmlText(page_, cell.type);
    }
    page_.append("<td>");
    if (cell.isThere) {
      AppendHtmlText(page_, cell.value);
    } else {
      page_.append("<i>missing</i>");
    }
  }

  std::string& page_;
  const FileRecord& file_;
  std::string idStart_;
  std::vector<bool> isWritten_;  // of the file's lines
  bool hasCells_;
};

/// Writes the part of the page that is about one file.
class HtmlFileWriter {
 public:
  HtmlFileWriter(std::string& page, const FindingsReport& report, std::size_t fileIndex)
      : page_(page),
        report_(report),
        file_(report.files[fileIndex]),
        fileId_(HtmlFileId(fileIndex)),
        lines_(page, file_, fileIndex) {}

  void Append() {
    page_.append("<section class=\"file\" id=\"").append(fileId_).append("\">\n<h2>");
    AppendHtmlText(page_, file_.path);
    page_.append("</h2>\n");
    AppendNotes();
    page_.append("<div class=\"parts\">\n");
    for (std::size_t first = 0; first < file_.findings.size();)
      first = AppendSection(first);
    page_.append("</div>\n</section>\n");
  }

 private:
  void AppendNotes() {
    page_.append("<p>In this file: ").append(CountsText(file_.counts)).append(".</p>\n");
    if (!file_.isComplete) {
      page_.append("<p class=\"note\">The file was not checked to the end: ");
      AppendHtmlText(page_, file_.reason);
      page_.append("</p>\n");
    }
    if (!lines_.HasCells()) {
      page_.append("<p class=\"note\">With more than ").append(GroupedCount(MostFindingsWithCells));
      page_.append(
          " findings in the file, lines are shown as they stand, without the table of their "
          "cells.</p>\n");
    }
    page_.append("<p class=\"none\" hidden>No finding of this file is shown.</p>\n");
  }

  /// The findings of one section, the first of which is given; returns the first one behind them.
  std::size_t AppendSection(std::size_t first) {
    std::size_t end = first;
    while (end < file_.findings.size() &&
           file_.findings[end].section == file_.findings[first].section)
      ++end;
    page_.append("<section class=\"part\"><h3><span>");
    AppendHtmlText(page_, file_.Section(file_.findings[first]));
    page_.append("</span> <small>").append(GroupedCount(end - first)).append("</small></h3>\n");
    for (std::size_t start = first; start < end; start += LongestList)
      AppendList(start, std::min(start + LongestList, end));
    page_.append("</section>\n");
    return end;
  }

  void AppendList(std::size_t first, std::size_t end) {
    page_.append(end - first == LongestList ? "<ol class=\"long\">" : "<ol>");
    for (std::size_t index = first; index < end; ++index)
      AppendFinding(file_.findings[index]);
    page_.append("</ol>\n");
  }

  void AppendFinding(const FindingRecord& finding) {
    page_.append("\n<li class=\"").append(SeverityWord(finding.severity)).append("\"><b>");
    page_.append(SeverityLabel(finding.severity)).append("</b><span>");
    AppendPlace(finding);
    page_.append("</span><div><p>");
    AppendHtmlLines(page_, finding.text);
    page_.append("</p><p>");
    AppendFacts(finding);
    page_.append("</p>");
    lines_.Append(finding);
    page_.append("</div></li>");
  }

  void AppendPlace(const FindingRecord& finding) {
    if (finding.line == 0) return;
    page_.append("Line ").append(std::to_string(finding.line));
    if (finding.column != 0) page_.append(", column ").append(std::to_string(finding.column));
  }

  void AppendFacts(const FindingRecord& finding) {
    AppendFact("Rule ", file_.Rule(finding));
    AppendFact("Group ", file_.GroupName(finding));
    AppendFact("Heading ", file_.HeadingName(finding));
    AppendFact("Key ", finding.key);
    AppendFact("Compared: ", finding.state == FindingState::Waived ? "" : StateWord(finding.state));
    AppendFact("Waived: ", report_.WaiverReason(finding));
    page_.append("<a href=\"#kind-");
    AppendHtmlText(page_, finding.definition->id);
    page_.append("\">");
    AppendHtmlText(page_, finding.definition->id);
    page_.append("</a>");
  }

  void AppendFact(std::string_view name, std::string_view value) {
    if (value.empty()) return;
    page_.append(name).append("<bdi>");
    AppendHtmlText(page_, value);
    page_.append("</bdi> \xC2\xB7 ");
  }

  std::string& page_;
  const FindingsReport& report_;
  const FileRecord& file_;
  std::string fileId_;
  HtmlLineWriter lines_;
};

void AppendViewChoice(std::string& page, std::string_view view, std::string_view label,
                      bool isChosen) {
  page.append("<label><input type=\"radio\" name=\"view\" autocomplete=\"off\" value=\"");
  page.append(view).append(isChosen ? "\" checked>" : "\">").append(label).append("</label>\n");
}

void AppendSeverityBox(std::string& page, Severity severity, std::int64_t count) {
  if (count == 0) return;
  page.append("<label><input type=\"checkbox\" name=\"severity\" autocomplete=\"off\" value=\"");
  page.append(SeverityWord(severity)).append("\" checked>").append(SeverityLabel(severity));
  page.append(" (").append(GroupedCount(static_cast<std::uint64_t>(count))).append(")</label>\n");
}

/// The controls, which only the script shows: without it they could do nothing.
void AppendControls(std::string& page, const SeverityCounts& counts) {
  page.append(
      "<div id=\"controls\" role=\"search\" aria-label=\"Findings shown\" hidden>\n"
      "<fieldset><legend>Order</legend>\n");
  AppendViewChoice(page, "section", "by section", true);
  AppendViewChoice(page, "line", "by line", false);
  AppendViewChoice(page, "severity", "by severity", false);
  page.append("</fieldset>\n<fieldset><legend>Severity</legend>\n");
  for (const Severity severity : Severities)
    AppendSeverityBox(page, severity, CountOf(counts, severity));
  page.append(
      "</fieldset>\n<label class=\"filter\">Filter <input type=\"search\" id=\"filter\" "
      "autocomplete=\"off\" spellcheck=\"false\" placeholder=\"text, group, rule, line\"></label>\n"
      "</div>\n<p><output id=\"shown\"></output></p>\n");
}

/// The definitions that a report's findings refer to, by id.
std::map<std::string_view, const MessageDefinition*> KindsOf(const FindingsReport& report) {
  std::map<std::string_view, const MessageDefinition*> kinds;
  for (const FileRecord& file : report.files) {
    for (const FindingRecord& finding : file.findings)
      kinds.emplace(finding.definition->id, finding.definition);
  }
  return kinds;
}

void AppendKinds(std::string& page, const FindingsReport& report) {
  page.append(
      "<section class=\"kinds\" aria-labelledby=\"kinds\">\n"
      "<h2 id=\"kinds\">What the findings mean</h2>\n");
  for (const auto& [id, definition] : KindsOf(report)) {
    page.append("<section id=\"kind-");
    AppendHtmlText(page, id);
    page.append("\"><h3>");
    AppendHtmlText(page, id);
    page.append("</h3>\n<p>");
    AppendHtmlText(page, definition->meaning);
    page.append("</p>\n<p>To mend it: ");
    AppendHtmlText(page, definition->remedy);
    page.append("</p></section>\n");
  }
  page.append("</section>\n");
}

}  // namespace

std::string HtmlFindings(const FindingsReport& report) {
  const SeverityCounts counts = report.Counts();
  std::string page;
  AppendHtmlHead(page, report);
  page.append("<body>\n");
  AppendHtmlSummary(page, report);
  page.append("<main>\n");
  if (counts.Total() > 0) AppendControls(page, counts);
  for (std::size_t index = 0; index < report.files.size(); ++index)
    HtmlFileWriter(page, report, index).Append();
  if (counts.Total() > 0) AppendKinds(page, report);
  page.append("</main>\n<script>").append(HtmlScript).append("</script>\n</body>\n</html>\n");
  return page;
}

}  // namespace quorvane

#include "rules/abbreviations.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "parse/reference_group.h"
#include "parse/reference_values.h"
#include "rules/abbreviation_codes.h"
#include "rules/abbreviation_messages.h"
#include "text/same_text.h"
#include "text/text.h"
#include "text/text_table.h"

namespace quorvane {
namespace {

/// What became of a row of the ABBR group.
enum class RowOutcome { ContaminantType, NoHeading, NoReferences, NoCode, Repeated, Accepted };

struct AbbrRow {
  RowOutcome outcome = RowOutcome::Accepted;
  std::size_t heading = 0;  // index of the heading's record; only behind NoHeading
};

/// A heading that the ABBR group has entries for.
struct AbbrHeadingRecord {
  std::string heading;  // upper case, without a leading "?"
  std::vector<HeadingPlace> references;
  AbbreviationCodes codes;
  /// The values in the data that hold a code which is not listed, one for each cell in data order.
  std::vector<std::string_view> valuesWithUnlistedCode;
};

/// The rows are read first, then the data under each heading once, for what both directions of the
/// check need; the findings follow in the order of the rows and of the headings.
class AbbreviationCheck {
 public:
  explicit AbbreviationCheck(CheckedFile& file)
      : file_(file),
        abbr_(file.singletons.abbr),
        headingColumn_(file.table.LocateHeading(abbr_, "ABBR_HDNG")),
        codeColumn_(file.table.LocateHeading(abbr_, "ABBR_CODE")),
        descriptionColumn_(RequireHeading(file.table, file.log, abbr_, "ABBR_DESC")) {}

  void Run() {
    ReadRows();
    if (usableCount_ > 0) {
      for (AbbrHeadingRecord& record : records_)
        ReadData(record);
    }
    ReportRows();
    if (usableCount_ == 0) {
      file_.log.AddMessage(0, AbbrNoUsableData, {}, {abbr_, 0, 0});
      return;
    }
    if (!file_.IsAgs4()) {
      ReportMissingValues(file_.log, descriptionMissing_, "ABBR_HDNG-ABBR_CODE", "ABBR_DESC");
    }
    for (const AbbrHeadingRecord& record : records_)
      ReportUnlistedCodes(record);
    for (const std::string& heading : file_.dictionary.PickListHeadings)
      CheckHasEntries(heading);
  }

 private:
  std::string_view Cell(std::int32_t row, int column) const {
    return column == 0 ? std::string_view() : file_.table.Value(abbr_, row, column);
  }

  std::string HeadingOf(std::int32_t row) const {
    std::string heading = UpperCase(Cell(row, headingColumn_));
    if (heading.starts_with('?')) heading.erase(0, 1);
    return heading;
  }

  std::string CodeOf(std::int32_t row) const { return UpperCase(Cell(row, codeColumn_)); }

  void ReadRows() {
    const std::int32_t rowCount = file_.table.At(abbr_).rowCount;
    rows_.reserve(static_cast<std::size_t>(rowCount));
    for (std::int32_t row = 1; row <= rowCount; ++row)
      rows_.push_back(ReadRow(row));
  }

  AbbrRow ReadRow(std::int32_t row) {
    std::string heading = HeadingOf(row);
    if (!file_.IsAgs4() && heading == "CNMT_TYPE") return {RowOutcome::ContaminantType, 0};
    if (heading.empty()) return {RowOutcome::NoHeading, 0};
    const std::size_t index = RecordOf(std::move(heading));
    AbbrHeadingRecord& record = records_[index];
    if (record.references.empty()) return {RowOutcome::NoReferences, index};
    const std::string code = CodeOf(row);
    if (code.empty()) return {RowOutcome::NoCode, index};
    if (!record.codes.Add(code)) return {RowOutcome::Repeated, index};
    CollectMissingValue(descriptionColumn_ != 0, Cell(row, descriptionColumn_),
                        record.heading + "-" + code, descriptionMissing_);
    ++usableCount_;
    return {RowOutcome::Accepted, index};
  }

  std::size_t RecordOf(std::string heading) {
    const auto [entry, isNew] = recordByHeading_.try_emplace(std::move(heading), records_.size());
    if (isNew) {
      std::vector<HeadingPlace> references = file_.table.LocateHeading(entry->first);
      if (references.empty()) references = file_.table.LocateHeading("?" + entry->first);
      records_.push_back(
          {entry->first, std::move(references), AbbreviationCodes(file_.concatenator), {}});
    }
    return entry->second;
  }

  void ReadData(AbbrHeadingRecord& record) {
    // Data hold few different values; each is judged where it is first met.
    TextTable<bool> holdsUnlistedCode;
    for (const HeadingPlace& place : record.references) {
      std::string_view previous;
      bool isUnlisted = false;
      ForEachValue(file_.table, place.group, place.column,
                   [&](std::int32_t, std::string_view value) {
                     if (!SameText(value, previous)) {
                       previous = value;
                       const auto [known, isNew] = holdsUnlistedCode.TryEmplace(value, false);
                       if (isNew) known = ReadValue(record.codes, value);
                       isUnlisted = known;
                     }
                     if (isUnlisted) record.valuesWithUnlistedCode.push_back(value);
                   });
    }
  }

  /// Marks the codes that a value uses and tells whether it holds one that is not listed.
  bool ReadValue(AbbreviationCodes& codes, std::string_view value) {
    const std::string_view upper = InUpperCase(value);
    codes.MarkUsed(upper);
    bool holdsUnlisted = false;
    ForEachCode(upper, file_.concatenator,
                [&](std::string_view code) { holdsUnlisted |= !codes.Contains(code); });
    return holdsUnlisted;
  }

  /// A view that the next call ends.
  std::string_view InUpperCase(std::string_view value) {
    upperValue_.resize(value.size());
    std::transform(value.begin(), value.end(), upperValue_.begin(), ToUpper);
    return upperValue_;
  }

  void ReportRows() {
    for (std::int32_t row = 1; row <= file_.table.At(abbr_).rowCount; ++row) {
      ReportRow(row, rows_[static_cast<std::size_t>(row - 1)]);
    }
  }

  void ReportRow(std::int32_t row, const AbbrRow& read) {
    const auto report = [&](const MessageDefinition& definition, int column, MessageValues values) {
      file_.log.AddMessage(file_.table.RowLine(abbr_, row), definition, values,
                           {abbr_, row, column});
    };
    switch (read.outcome) {
      case RowOutcome::ContaminantType:
        report(AbbrContaminantType, headingColumn_, {});
        break;
      case RowOutcome::NoHeading:
        if (!file_.IsAgs4()) report(AbbrHeadingValueMissing, headingColumn_, {});
        break;
      case RowOutcome::NoReferences:
        report(AbbrHeadingNotUsed, headingColumn_, {records_[read.heading].heading});
        break;
      case RowOutcome::NoCode:
        if (!file_.IsAgs4()) {
          report(AbbrCodeValueMissing, codeColumn_, {records_[read.heading].heading});
        }
        break;
      case RowOutcome::Repeated:
        break;  // repeated keys are another check's business
      case RowOutcome::Accepted:
        if (const std::string code = CodeOf(row); !records_[read.heading].codes.IsUsed(code)) {
          report(AbbrCodeNotUsed, codeColumn_, {code, records_[read.heading].heading});
        }
        break;
    }
  }

  /// Codes that are used without being listed stand at the group in which they are missed.
  void ReportUnlistedCodes(const AbbrHeadingRecord& record) {
    const Group& abbr = file_.table.At(abbr_);
    for (const std::string_view value : record.valuesWithUnlistedCode) {
      ForEachCode(InUpperCase(value), file_.concatenator, [&](std::string_view code) {
        if (record.codes.Contains(code)) return;
        file_.log.AddMessage(abbr.headingLine, AbbrCodeNotListed, {code, record.heading, abbr.name},
                             {abbr_, 0, 0});
      });
    }
  }

  void CheckHasEntries(std::string_view heading) {
    if (heading.starts_with('?')) heading.remove_prefix(1);
    if (recordByHeading_.contains(std::string(heading)) || !HasData(heading)) return;
    file_.log.AddMessage(0, AbbrNoEntries, {heading}, {abbr_, 0, 0});
  }

  bool HasData(std::string_view heading) const {
    for (const HeadingPlace& place : file_.table.LocateHeading(heading)) {
      for (std::int32_t row = 1; row <= file_.table.At(place.group).rowCount; ++row) {
        if (!file_.table.Value(place.group, row, place.column).empty()) return true;
      }
    }
    return false;
  }

  CheckedFile& file_;
  int abbr_;
  int headingColumn_;
  int codeColumn_;
  int descriptionColumn_;
  std::vector<AbbrRow> rows_;
  std::vector<AbbrHeadingRecord> records_;  // in the order in which their headings first appear
  std::unordered_map<std::string, std::size_t> recordByHeading_;
  std::vector<std::string> descriptionMissing_;
  std::size_t usableCount_ = 0;
  std::string upperValue_;
};

void CheckEntries(CheckedFile& file) {
  const int abbr = file.singletons.abbr;
  if (abbr == 0) {
    file.log.AddMessage(0, AbbrGroupMissing);
  } else if (!file.table.At(abbr).isKeyed) {
    file.log.AddMessage(0, AbbrKeyFieldsMissing, {}, {abbr, 0, 0});
  } else {
    AbbreviationCheck(file).Run();
  }
}

}  // namespace

void CheckAbbrGroup(CheckedFile& file) {
  if (file.IsAgs4() && file.singletons.abbr == 0) return;
  CheckEntries(file);
  file.log.CloseCheckSection(file.IsAgs4() ? "Abbreviations check "
                                           : "Abbreviations check (Rule 20)");
}

}  // namespace quorvane

#include "generate_file_writer.h"

#include <algorithm>

#include "generate_random.h"
#include "generate_references.h"
#include "generate_values.h"

namespace quorvane::generate {

namespace {

std::uint64_t CountPoints(const Site& site, std::uint32_t locationCount) {
  std::uint64_t points = 0;
  for (std::uint32_t i = 0; i < locationCount; ++i) {
    points += static_cast<std::uint64_t>(site.LocationAt(i).pointCount);
  }
  return points;
}

bool Has(Set set, unsigned member) {
  return ((set >> member) & 1U) != 0;
}

}  // namespace

FileWriter::FileWriter(const Catalogue& catalogue, const Site& site, const Format& format,
                       FaultMaker* faults, Output& output)
    : catalogue_(catalogue),
      site_(site),
      format_(format),
      faults_(faults),
      output_(output),
      usage_(catalogue) {}

void FileWriter::WriteGroups(std::uint32_t locationCount) {
  for (std::size_t i = 0; i + 1 < catalogue_.groups.size(); ++i) {
    OpenGroup open = Open(i);
    const std::uint32_t count = open.group.level == Level::Project ? 1 : locationCount;
    for (std::uint32_t index = 0; index < count; ++index) {
      WriteLocation(open, site_.LocationAt(index));
    }
    Close(open);
  }
}

void FileWriter::WriteReadings(std::uint32_t locationCount, std::uint64_t wantedBytes) {
  const std::uint64_t references = RenderReferences(usage_, format_).text.size();
  const std::uint64_t start = cleanBytes_;
  const std::uint64_t fixed = start + references;
  const std::uint64_t room = fixed < wantedBytes ? wantedBytes - fixed : 0;
  const std::uint64_t pointCount = CountPoints(site_, locationCount);
  std::uint64_t pointsDone = 0;
  OpenGroup open = Open(catalogue_.groups.size() - 1);
  for (std::uint32_t index = 0; index < locationCount; ++index) {
    const Location location = site_.LocationAt(index);
    for (int point = 0; point < location.pointCount; ++point) {
      const std::uint64_t goal = start + room * ++pointsDone / pointCount;
      int row = 0;
      do {
        WriteRow(open, {.location = location, .point = point, .row = row++});
      } while (cleanBytes_ < goal);
    }
  }
  Close(open);
}

void FileWriter::WriteReferences() {
  const Lines references = RenderReferences(usage_, format_);
  output_.Append(references.text);
  cleanBytes_ += references.text.size();
  totals_.groups += references.groups;
  totals_.lines += references.lines;
  totals_.rows += references.rows;
  totals_.cells += references.cells;
}

FileWriter::OpenGroup FileWriter::Open(std::size_t index) {
  const Group& group = catalogue_.groups[index];
  return {.group = group,
          .maker = RowMaker(site_, group, index, usage_),
          .salt = Combine(site_.Seed(), SaltOf(group.name)),
          .testSalt = Combine(site_.Seed(), SaltOf(group.test)),
          .previousKey = {}};
}

void FileWriter::Close(const OpenGroup& open) {
  if (!open.started) return;
  text_.clear();
  Emit(format_.AppendGroupEnd(text_));
}

void FileWriter::WriteLocation(OpenGroup& open, const Location& location) {
  const Group& group = open.group;
  if (group.level == Level::Sample) {
    for (int i = 0; i < location.sampleCount; ++i) {
      WriteSample(open, location, site_.SampleAt(location, i));
    }
    return;
  }
  const bool wanted =
      group.level == Level::FileSet
          ? OpensFileSet(location)
          : group.level == Level::Project || Has(group.rigs, static_cast<unsigned>(location.rig));
  if (!wanted) return;
  int rowCount = group.perPoint ? location.pointCount : 1;
  if (group.spacing > 0) rowCount = std::max(1, location.depth / group.spacing);
  for (int row = 0; row < rowCount; ++row) {
    WriteRow(open, {.location = location,
                    .point = group.perPoint ? row : 0,
                    .row = row,
                    .rowCount = rowCount});
  }
}

void FileWriter::WriteSample(OpenGroup& open, const Location& location, const Sample& sample) {
  const Group& group = open.group;
  if (!Has(group.uses, static_cast<unsigned>(sample.use))) return;
  Random test(Combine(open.testSalt, location.index, sample.number));
  if (!test.Chance(group.percent)) return;
  Random random(Combine(open.salt, location.index, sample.number));
  const int rowCount = random.Between(group.minRows, group.maxRows);
  const int itemCount = static_cast<int>(EntriesOf(group.series).size());
  const int firstItem = itemCount > rowCount ? random.Between(0, itemCount - rowCount) : 0;
  for (int row = 0; row < rowCount; ++row) {
    WriteRow(open, {.location = location,
                    .sample = &sample,
                    .row = row,
                    .rowCount = rowCount,
                    .firstItem = firstItem});
  }
}

void FileWriter::WriteRow(OpenGroup& open, const RowPlace& place) {
  if (!open.started) {
    open.started = true;
    usage_.MarkColumns(open.group.columns);
    text_.clear();
    Emit(format_.AppendGroupStart(text_, open.group.name, open.group.columns, true));
    ++totals_.groups;
  }
  open.maker.Make(place, row_);
  ++totals_.rows;
  totals_.cells += open.group.columns.size();
  text_.clear();
  const std::size_t lines = format_.AppendRow(text_, row_.Cells());
  const bool mayBeSpoilt = open.group.level != Level::Project && open.group.level != Level::FileSet;
  if (faults_ != nullptr && mayBeSpoilt) {
    if (faults_->Draw()) {
      WriteSpoiltRow(open);
      return;
    }
    const std::span<const std::string_view> key = row_.Cells().first(open.group.keyCount);
    open.previousKey.assign(key.begin(), key.end());
  }
  Emit(lines);
}

void FileWriter::WriteSpoiltRow(OpenGroup& open) {
  cleanBytes_ += text_.size();
  text_.clear();
  totals_.lines += faults_->AppendSpoilt(text_, open.group, row_.Cells(), open.previousKey);
  output_.Append(text_);
  open.previousKey.clear();
}

void FileWriter::Emit(std::size_t lines) {
  cleanBytes_ += text_.size();
  totals_.lines += lines;
  output_.Append(text_);
}

}  // namespace quorvane::generate

#include "generate_rows.h"

#include "generate_random.h"
#include "generate_values.h"

namespace quorvane::generate {

namespace {

constexpr int kMinutesPerDay = 24 * 60;
constexpr int kReadingInterval = 6 * 60;  // minutes

/// What writing one value needs.
struct Cell {
  const Site& site;
  const Group& group;
  const Column& column;
  const RowPlace& place;
  Random& random;
  Usage& usage;
  std::size_t usagePlace;  // of the column's heading; Usage::kNone when it holds no codes
  std::string& text;
};

std::string_view UseCode(const Cell& cell, ListId list, std::size_t entry) {
  if (cell.usagePlace != Usage::kNone) cell.usage.MarkCode(cell.usagePlace, entry);
  return EntriesOf(list)[entry].code;
}

std::size_t ItemIndex(const Cell& cell) {
  const int itemCount = static_cast<int>(EntriesOf(cell.group.series).size());
  return static_cast<std::size_t>((cell.place.firstItem + cell.place.row) % itemCount);
}

void AppendRigCode(const Cell& cell) {
  const Location& location = cell.place.location;
  cell.text.append(UseCode(cell, ListId::Rig, static_cast<std::size_t>(location.rig)));
  if (!location.secondRig) return;
  cell.text.push_back('+');
  cell.text.append(UseCode(cell, ListId::Rig, static_cast<std::size_t>(Rig::Rotary)));
}

void AppendCoded(const Cell& cell) {
  const ListId list = cell.column.list;
  const auto entryCount = static_cast<std::uint32_t>(EntriesOf(list).size());
  cell.text.append(UseCode(cell, list, cell.random.Skewed(entryCount)));
}

/// All items of a series are read at one time, then all at the next.
void AppendReading(const Cell& cell) {
  const auto itemCount = static_cast<int>(EntriesOf(cell.group.series).size());
  const int round = cell.place.row / (itemCount > 0 ? itemCount : 1);
  const Location& location = cell.place.location;
  const int minute = 8 * 60 + static_cast<int>(location.index % 240) + round * kReadingInterval;
  AppendMoment(cell.text, cell.column.unit, location.day + 30 + minute / kMinutesPerDay,
               minute % kMinutesPerDay);
}

void AppendWorkTime(const Cell& cell) {
  const int day = cell.place.location.day + cell.random.Between(0, 20);
  AppendMoment(cell.text, cell.column.unit, day, cell.random.Between(7 * 60, 18 * 60));
}

void AppendSampleValue(const Cell& cell, const Sample& sample) {
  switch (cell.column.source) {
    case Source::SampleTop:
      AppendFixed(cell.text, sample.top, 2);
      break;
    case Source::SampleBase:
      AppendFixed(cell.text, sample.top + sample.length, 2);
      break;
    case Source::SpecimenDepth:
      AppendFixed(cell.text, sample.top + 5, 2);
      break;
    case Source::SampleReference:
      AppendWhole(cell.text, sample.number);
      break;
    case Source::SampleType:
      cell.text.append(UseCode(cell, ListId::SampleType, sample.typeIndex));
      break;
    case Source::SampleId:
      AppendSampleId(cell.text, cell.place.location, sample);
      break;
    case Source::SpecimenReference:
      cell.text.push_back('1');
      break;
    default:
      AppendLink(cell.text, cell.site, cell.place.location, sample, cell.random);
      break;
  }
}

void AppendValue(const Cell& cell) {
  const Column& column = cell.column;
  const RowPlace& place = cell.place;
  switch (column.source) {
    case Source::Blank:
      break;
    case Source::Fixed:
      cell.text.append(column.text);
      break;
    case Source::LocationId:
      cell.text.append(place.location.id);
      break;
    case Source::RigCode:
      AppendRigCode(cell);
      break;
    case Source::Depth:
      AppendFixed(cell.text, place.location.depth, 2);
      break;
    case Source::SampleTop:
    case Source::SampleReference:
    case Source::SampleType:
    case Source::SampleId:
    case Source::SampleBase:
    case Source::SpecimenReference:
    case Source::SpecimenDepth:
    case Source::Link:
      if (place.sample != nullptr) AppendSampleValue(cell, *place.sample);
      break;
    case Source::PointId:
      cell.text.push_back('P');
      AppendWhole(cell.text, place.point + 1);
      break;
    case Source::PointDepth:
      AppendFixed(cell.text, Site::PointDepth(place.location, place.point), 2);
      break;
    case Source::RowNumber:
      AppendWhole(cell.text, place.row + 1);
      break;
    case Source::SplitTop:
      AppendFixed(cell.text, place.location.depth * place.row / place.rowCount, 2);
      break;
    case Source::SplitBase:
      AppendFixed(cell.text, place.location.depth * (place.row + 1) / place.rowCount, 2);
      break;
    case Source::Step:
      AppendFixed(cell.text, column.low + column.high * place.row, column.decimals);
      break;
    case Source::Number:
      AppendFixed(cell.text, cell.random.Between(column.low, column.high), column.decimals);
      break;
    case Source::Coded:
      AppendCoded(cell);
      break;
    case Source::Words:
      AppendWords(cell.text, column.list, cell.random);
      break;
    case Source::ItemCode:
      cell.text.append(UseCode(cell, cell.group.series, ItemIndex(cell)));
      break;
    case Source::ItemName:
      cell.text.append(EntriesOf(cell.group.series)[ItemIndex(cell)].description);
      break;
    case Source::ItemUnit:
      cell.text.append(EntriesOf(cell.group.series)[ItemIndex(cell)].unit);
      break;
    case Source::Description:
      AppendDescription(cell.text, cell.random);
      break;
    case Source::Moment:
      AppendWorkTime(cell);
      break;
    case Source::Reading:
      AppendReading(cell);
      break;
    case Source::Elapsed:
      AppendMoment(cell.text, column.unit, 0, cell.random.Between(column.low, column.high));
      break;
    case Source::Angle:
      AppendAngle(cell.text, column.low, cell.random);
      break;
    case Source::YesNo:
      cell.text.push_back(cell.random.Chance(30) ? 'Y' : 'N');
      break;
    case Source::FileSet:
      AppendFileSet(cell.text, place.location);
      break;
    case Source::FileName:
      AppendFileSet(cell.text, place.location);
      cell.text.append(".PDF");
      break;
  }
}

}  // namespace

void Row::Clear() {
  text_.clear();
  ends_.clear();
}

std::span<const std::string_view> Row::Cells() {
  cells_.clear();
  std::size_t start = 0;
  for (const std::size_t end : ends_) {
    cells_.push_back(std::string_view(text_).substr(start, end - start));
    start = end;
  }
  return cells_;
}

RowMaker::RowMaker(const Site& site, const Group& group, std::size_t groupIndex, Usage& usage)
    : site_(site),
      group_(group),
      groupIndex_(groupIndex),
      salt_(Combine(site.Seed(), SaltOf(group.name))),
      usage_(usage) {}

void RowMaker::Make(const RowPlace& place, Row& row) {
  row.Clear();
  const int sampleNumber = place.sample == nullptr ? 0 : place.sample->number;
  Random random(Combine(salt_, place.location.index, sampleNumber * 1024 + place.point, place.row));
  for (std::size_t i = 0; i < group_.columns.size(); ++i) {
    const Column& column = group_.columns[i];
    if (column.percent == 100 || random.Chance(column.percent)) {
      AppendValue({site_, group_, column, place, random, usage_, usage_.PlaceOf(groupIndex_, i),
                   row.Text()});
    }
    row.EndCell();
  }
}

std::uint64_t SaltOf(std::string_view name) {
  std::uint64_t salt = 0;
  for (const char character : name)
    salt = Combine(salt, static_cast<unsigned char>(character));
  return salt;
}

}  // namespace quorvane::generate

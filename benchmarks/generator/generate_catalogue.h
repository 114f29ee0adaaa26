#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "generate_lists.h"
#include "generate_site.h"

namespace quorvane::generate {

/// Where the value of a column comes from.
enum class Source : unsigned char {
  Blank,
  Fixed,       // the column's text
  LocationId,  // BH12
  RigCode,     // code of the rig; two codes joined when the location had two
  Depth,       // final depth of the location
  SampleTop,
  SampleReference,
  SampleType,
  SampleId,
  SampleBase,
  SpecimenReference,
  SpecimenDepth,
  PointId,     // of a monitoring point
  PointDepth,  // of a monitoring point
  RowNumber,   // 1, 2, ... within the rows that belong together
  SplitTop,    // the location's depth, split evenly over the rows that belong together
  SplitBase,
  Step,      // low + high * row, in units of the last decimal
  Number,    // low to high, in units of the last decimal
  Coded,     // a code of the list, which the file has to explain
  Words,     // a text of the list
  ItemCode,  // code, description and unit of the row's item in the group's series
  ItemName,
  ItemUnit,
  Description,  // of a soil
  Moment,       // a date and time about the location's day, as the unit says
  Reading,      // the date and time of the row's reading, rising from row to row
  Elapsed,      // low to high minutes, as the unit says
  Angle,        // degrees, minutes and seconds; low is the degrees
  YesNo,
  FileSet,
  FileName,
  Link  // a record link to the sample or the location
};

struct Column {
  std::string_view heading = {};
  std::string_view type = {};  // in AGS 3 files, which have none, it only says how values look
  std::string_view unit = {};
  Source source = Source::Blank;
  int percent = 100;  // of the rows that have a value
  int decimals = 0;
  int low = 0;
  int high = 0;
  ListId list = ListId::None;
  std::string_view text = {};
};

/// How the rows of a group come about.
enum class Level : unsigned char { Project, FileSet, Location, Sample, Point };

/// Sets of rigs and sample uses, one bit each.
using Set = unsigned;

template <typename... Members>
constexpr Set SetOf(Members... members) {
  return ((1U << static_cast<unsigned>(members)) | ...);
}

inline constexpr Set kAll = ~0U;

/// A group of the file. Its rows are made at its level: for the file, for each file set, location,
/// sample or monitoring point, for those of them that the group applies to.
struct Group {
  std::string_view name = {};
  Level level = Level::Location;
  std::span<const Column> columns = {};
  std::size_t keyCount = 1;  // leading columns
  bool hasChildren = false;  // then its keys are never spoilt
  Set rigs = kAll;
  Set uses = kAll;
  /// Samples that have the test, in per cent. Groups with the same test have it on the same
  /// samples, which gives the rows of a child group their parent.
  std::string_view test = {};
  int percent = 100;
  int minRows = 1;
  int maxRows = 1;
  int spacing = 0;        // when above 0: one row for so many centimetres of the location's depth
  bool perPoint = false;  // one row for each monitoring point of the location
  ListId series = ListId::None;
};

/// What the files of one AGS version are made of. The groups stand in file order; the last one is
/// written at Level::Point until the file has its size. The groups that explain the codes, units
/// and types follow it.
struct Catalogue {
  std::vector<Group> groups = {};

  void Add(std::span<const Group> more) { groups.insert(groups.end(), more.begin(), more.end()); }
};

/// The AGS 4 groups, to the dictionary of edition 4.0.4: headings in its order, all key and all
/// required headings, its types and units.
Catalogue Ags4Catalogue();

/// The laboratory groups among them.
std::span<const Group> Ags4LabGroups();

/// The AGS 3 groups, to edition 3.1.
Catalogue Ags3Catalogue();

/// The laboratory groups among them.
std::span<const Group> Ags3LabGroups();

// Columns, as the tables of groups write them.

constexpr Column Blank(std::string_view heading, std::string_view type,
                       std::string_view unit = {}) {
  return {.heading = heading, .type = type, .unit = unit};
}

constexpr Column From(Source source, std::string_view heading, std::string_view type,
                      std::string_view unit = {}, int percent = 100) {
  return {.heading = heading, .type = type, .unit = unit, .source = source, .percent = percent};
}

constexpr Column Fixed(std::string_view heading, std::string_view text, std::string_view type = "X",
                       std::string_view unit = {}) {
  return {.heading = heading, .type = type, .unit = unit, .source = Source::Fixed, .text = text};
}

/// A number with so many decimals whatever the type says.
constexpr Column Decimal(std::string_view heading, std::string_view type, std::string_view unit,
                         int decimals, int low, int high, int percent = 100) {
  return {.heading = heading,
          .type = type,
          .unit = unit,
          .source = Source::Number,
          .percent = percent,
          .decimals = decimals,
          .low = low,
          .high = high};
}

/// A number of a type such as 2DP, which gives its decimals.
constexpr Column Number(std::string_view heading, std::string_view type, std::string_view unit,
                        int low, int high, int percent = 100) {
  return Decimal(heading, type, unit, type[0] - '0', low, high, percent);
}

constexpr Column Step(std::string_view heading, std::string_view type, std::string_view unit,
                      int first, int step) {
  Column column = Number(heading, type, unit, first, step);
  column.source = Source::Step;
  return column;
}

constexpr Column Coded(std::string_view heading, ListId list, int percent = 100) {
  return {
      .heading = heading, .type = "PA", .source = Source::Coded, .percent = percent, .list = list};
}

constexpr Column Words(std::string_view heading, ListId list, int percent = 100) {
  return {
      .heading = heading, .type = "X", .source = Source::Words, .percent = percent, .list = list};
}

constexpr Column Elapsed(std::string_view heading, std::string_view unit, int low, int high,
                         int percent) {
  return {.heading = heading,
          .type = "T",
          .unit = unit,
          .source = Source::Elapsed,
          .percent = percent,
          .low = low,
          .high = high};
}

constexpr Column Angle(std::string_view heading, int degrees, int percent) {
  return {.heading = heading,
          .type = "DMS",
          .source = Source::Angle,
          .percent = percent,
          .low = degrees};
}

/// Columns that several groups begin with, followed by a group's own.
template <std::size_t A, std::size_t B>
constexpr std::array<Column, A + B> Join(const std::array<Column, A>& first,
                                         const std::array<Column, B>& second) {
  std::array<Column, A + B> joined{};
  for (std::size_t i = 0; i < A; ++i)
    joined[i] = first[i];
  for (std::size_t i = 0; i < B; ++i)
    joined[A + i] = second[i];
  return joined;
}

// Groups, as the tables write them.

/// A test on one specimen of each sample that has it.
constexpr Group TestOf(std::string_view name, std::span<const Column> columns, std::size_t keyCount,
                       Set uses, int percent) {
  return {.name = name,
          .level = Level::Sample,
          .columns = columns,
          .keyCount = keyCount,
          .uses = uses,
          .test = name,
          .percent = percent};
}

constexpr Group WithChildren(Group group) {
  group.hasChildren = true;
  return group;
}

/// The result rows of a test, with one key heading more than the test.
constexpr Group ResultsOf(Group test, std::string_view name, std::span<const Column> columns,
                          int minRows = 1, int maxRows = 1) {
  test.name = name;
  test.columns = columns;
  test.keyCount += 1;
  test.minRows = minRows;
  test.maxRows = maxRows;
  return test;
}

/// A group whose rows take the items of a series one after the other.
constexpr Group SeriesOf(Group group, int minRows, int maxRows, ListId series) {
  group.minRows = minRows;
  group.maxRows = maxRows;
  group.series = series;
  return group;
}

}  // namespace quorvane::generate

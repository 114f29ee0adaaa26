#include "generate_usage.h"

#include <stdexcept>
#include <string>

namespace quorvane::generate {

namespace {

/// The list of a column that holds codes for the file to explain; None for other columns.
ListId ListOfCodes(const Group& group, const Column& column) {
  switch (column.source) {
    case Source::RigCode:
      return ListId::Rig;
    case Source::SampleType:
      return ListId::SampleType;
    case Source::Coded:
      return column.list;
    case Source::ItemCode:
      return group.series == ListId::Determinand || group.series == ListId::ReadingType
                 ? group.series
                 : ListId::None;
    default:
      return ListId::None;
  }
}

void MarkEntry(std::span<const Code> entries, std::string_view code, std::vector<bool>& used) {
  if (code.empty()) return;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (entries[i].code != code) continue;
    used[i] = true;
    return;
  }
  throw std::logic_error("no description for \"" + std::string(code) + "\"");
}

}  // namespace

Usage::Usage(const Catalogue& catalogue)
    : units_(KnownUnits().size(), false), types_(KnownTypes().size(), false) {
  for (const Group& group : catalogue.groups) {
    std::vector<std::size_t>& places = places_.emplace_back();
    for (const Column& column : group.columns) {
      const ListId list = ListOfCodes(group, column);
      places.push_back(list == ListId::None ? kNone : AddHeading(column.heading, list));
    }
  }
}

std::size_t Usage::AddHeading(std::string_view heading, ListId list) {
  for (std::size_t i = 0; i < headings_.size(); ++i) {
    if (headings_[i].heading == heading) return i;
  }
  headings_.push_back({heading, list, std::vector<bool>(EntriesOf(list).size(), false)});
  return headings_.size() - 1;
}

void Usage::MarkColumns(std::span<const Column> columns) {
  for (const Column& column : columns) {
    MarkEntry(KnownUnits(), column.unit, units_);
    MarkEntry(KnownTypes(), column.type, types_);
  }
}

std::vector<bool> Usage::UsedUnits() const {
  std::vector<bool> used = units_;
  for (const ExplainedHeading& heading : headings_) {
    const std::span<const Code> entries = EntriesOf(heading.list);
    for (std::size_t i = 0; i < entries.size(); ++i) {
      if (heading.used[i]) MarkEntry(KnownUnits(), entries[i].unit, used);
    }
  }
  return used;
}

}  // namespace quorvane::generate

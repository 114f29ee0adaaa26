#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "generate_catalogue.h"

namespace quorvane::generate {

/// A heading whose codes the file explains, and which of them it uses.
struct ExplainedHeading {
  std::string_view heading;
  ListId list = ListId::None;
  std::vector<bool> used;  // per entry of the list
};

/// What the groups written so far use of codes, units and types, so that the groups that explain
/// them list exactly these.
class Usage {
 public:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  explicit Usage(const Catalogue& catalogue);

  /// Place in Headings() of a column that holds codes, else kNone. A heading that several groups
  /// have, such as SAMP_TYPE, has one place.
  std::size_t PlaceOf(std::size_t group, std::size_t column) const {
    return places_[group][column];
  }

  void MarkCode(std::size_t place, std::size_t entry) { headings_[place].used[entry] = true; }

  /// Takes in the units and types of a group's columns. Throws std::logic_error for one that the
  /// lists of known units and types do not have: the file could not explain it.
  void MarkColumns(std::span<const Column> columns);

  const std::vector<ExplainedHeading>& Headings() const { return headings_; }

  /// Which of KnownUnits() are used, as the unit of a column or of a code's readings.
  std::vector<bool> UsedUnits() const;

  /// Which of KnownTypes() are used.
  const std::vector<bool>& UsedTypes() const { return types_; }

 private:
  std::size_t AddHeading(std::string_view heading, ListId list);

  std::vector<ExplainedHeading> headings_;
  std::vector<std::vector<std::size_t>> places_;
  std::vector<bool> units_;
  std::vector<bool> types_;
};

}  // namespace quorvane::generate

#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "generate_catalogue.h"
#include "generate_site.h"
#include "generate_usage.h"

namespace quorvane::generate {

/// The values of one data row, as they stand between the quotes.
class Row {
 public:
  void Clear();

  /// The text of all cells; a cell is written by appending to it and then ending the cell.
  std::string& Text() { return text_; }
  void EndCell() { ends_.push_back(text_.size()); }

  /// The cells; valid until the row is changed.
  std::span<const std::string_view> Cells();

 private:
  std::string text_;
  std::vector<std::size_t> ends_;
  std::vector<std::string_view> cells_;
};

/// Where in the site a row stands.
struct RowPlace {
  const Location& location;
  const Sample* sample = nullptr;  // set in groups of the sample level
  int point = 0;                   // monitoring point, from 0
  int row = 0;                     // within the rows that belong together, from 0
  int rowCount = 1;
  int firstItem = 0;  // of the group's series
};

/// Makes the rows of one group. The values depend on the site's seed and the place alone, so a file
/// with faults has the rows of its clean twin.
class RowMaker {
 public:
  /// The site and the usage, which learns every code written, must outlive the maker.
  RowMaker(const Site& site, const Group& group, std::size_t groupIndex, Usage& usage);

  void Make(const RowPlace& place, Row& row);

 private:
  const Site& site_;
  const Group& group_;
  std::size_t groupIndex_;
  std::uint64_t salt_;
  Usage& usage_;
};

/// A number that tells names apart.
std::uint64_t SaltOf(std::string_view name);

}  // namespace quorvane::generate

#include "parse/field_scan.h"

#include <bit>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace quorvane {
namespace {

/// A boundary between two values is three characters long: quote, comma, quote.
constexpr std::size_t BoundaryLength = 3;

bool CanBeRegular(std::string_view line) {
  return line.size() >= 2 && line.size() <= LongestRegularLine && line.front() == '"' &&
         line.back() == '"' && line[1] != ' ' && !line.substr(1).starts_with(",\"");
}

std::size_t Finish(std::string_view line, FieldOffset* offsets, std::size_t count) {
  offsets[count] = static_cast<FieldOffset>(line.size() + BoundaryLength - 1);
  return count;
}

}  // namespace

std::size_t ScanRegularFieldsPlainly(std::string_view line, FieldOffset* offsets) {
  if (!CanBeRegular(line)) return 0;
  offsets[0] = 1;
  std::size_t count = 1;
  for (std::size_t at = 1; at < line.size(); ++at) {
    if (line[at] != '"') continue;
    if (at + 1 == line.size()) return Finish(line, offsets, count);
    if (!line.substr(at).starts_with("\",\"") ||
        line.substr(at + BoundaryLength).starts_with(' ')) {
      return 0;
    }
    at += BoundaryLength - 1;
    if (line.substr(at + 1).starts_with(",\"")) return 0;  // a value that is a comma
    offsets[count++] = static_cast<FieldOffset>(at + 1);
  }
  return 0;
}

#if defined(__SSE2__)

namespace {

constexpr std::size_t BlockLength = 64;

/// 64 bytes of a line, asked for the places of single characters.
class LineBlock {
 public:
  explicit LineBlock(const char* text)
      : first_(Load(text)),
        second_(Load(text + 16)),
        third_(Load(text + 32)),
        last_(Load(text + 48)) {}

  /// The places where the character stands, the first in the lowest bit.
  std::uint64_t PlacesOf(char character) const {
    const __m128i wanted = _mm_set1_epi8(character);
    return PlacesOf(wanted, first_) | PlacesOf(wanted, second_) << 16U |
           PlacesOf(wanted, third_) << 32U | PlacesOf(wanted, last_) << 48U;
  }

 private:
  static __m128i Load(const char* text) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
  }

  static std::uint64_t PlacesOf(__m128i wanted, __m128i part) {
    return static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(part, wanted)));
  }

  __m128i first_;
  __m128i second_;
  __m128i third_;
  __m128i last_;
};

/// The places of one block moved on towards the next: what leaves it is kept and enters there.
class MovedPlaces {
 public:
  explicit MovedPlaces(unsigned distance) : distance_(distance) {}

  std::uint64_t Next(std::uint64_t places) {
    const std::uint64_t moved = (places << distance_) | entering_;
    entering_ = places >> (BlockLength - distance_);
    return moved;
  }

  /// Whether something is left that entered no block.
  bool IsAnyLeft() const { return entering_ != 0; }

 private:
  unsigned distance_;
  std::uint64_t entering_ = 0;
};

}  // namespace

std::size_t ScanRegularFields(std::string_view line, FieldOffset* offsets) {
  if (!CanBeRegular(line)) return 0;
  offsets[0] = 1;
  std::size_t count = 1;
  MovedPlaces commasBefore(1);
  MovedPlaces quotesTwoBefore(2);
  MovedPlaces boundariesBefore(1);
  MovedPlaces firstQuotes(2);
  for (std::size_t at = 0; at < line.size(); at += BlockLength) {
    const LineBlock block(line.data() + at);
    const std::size_t left = line.size() - at;
    const std::uint64_t inLine = left >= BlockLength ? ~0ULL : (1ULL << left) - 1;
    const std::uint64_t quotes = block.PlacesOf('"') & inLine;
    // The second quotes of boundaries.
    const std::uint64_t boundaries =
        quotes & commasBefore.Next(block.PlacesOf(',')) & quotesTwoBefore.Next(quotes);
    // All other quotes must be the first ones of boundaries, but for those that enclose the line:
    // one that is not stands inside a value, and a boundary without one shares it with another
    // boundary, as around a value that is a comma, or with the line's beginning.
    std::uint64_t otherQuotes = quotes & ~boundaries;
    if (at == 0) otherQuotes &= ~1ULL;
    if (left <= BlockLength) otherQuotes &= ~(1ULL << (left - 1));
    const std::uint64_t valueStarts = boundariesBefore.Next(boundaries);
    const bool startsBlank = (valueStarts & block.PlacesOf(' ')) != 0;
    if (firstQuotes.Next(otherQuotes) != boundaries || startsBlank) return 0;
    for (std::uint64_t rest = boundaries; rest != 0; rest &= rest - 1) {
      offsets[count++] =
          static_cast<FieldOffset>(at + static_cast<std::size_t>(std::countr_zero(rest)) + 1);
    }
  }
  // The last value must not begin behind the closing quote.
  const bool isRegular = !firstQuotes.IsAnyLeft() && offsets[count - 1] < line.size();
  return isRegular ? Finish(line, offsets, count) : 0;
}

#else

std::size_t ScanRegularFields(std::string_view line, FieldOffset* offsets) {
  return ScanRegularFieldsPlainly(line, offsets);
}

#endif

}  // namespace quorvane

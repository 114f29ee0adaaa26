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

std::size_t ScanRegularFields(std::string_view line, FieldOffset* offsets) {
  if (!CanBeRegular(line)) return 0;
  constexpr std::size_t block = 16;
  const __m128i quotes = _mm_set1_epi8('"');
  const __m128i commas = _mm_set1_epi8(',');
  const __m128i blanks = _mm_set1_epi8(' ');
  const auto load = [&line](std::size_t at) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(line.data() + at));
  };

  offsets[0] = 1;
  std::size_t count = 1;
  std::uint32_t leadingBlanks = 0;
  // Bit 0: the byte is the second quote of a boundary that began in the block before, or the quote
  // that opens the line.
  std::uint32_t secondQuotes = 1;
  for (std::size_t at = 0; at < line.size(); at += block) {
    const __m128i isQuote = _mm_cmpeq_epi8(load(at), quotes);
    const __m128i isBoundary =
        _mm_and_si128(_mm_and_si128(isQuote, _mm_cmpeq_epi8(load(at + 1), commas)),
                      _mm_cmpeq_epi8(load(at + 2), quotes));
    const __m128i startsBlank =
        _mm_and_si128(isBoundary, _mm_cmpeq_epi8(load(at + BoundaryLength), blanks));
    auto quoteBits = static_cast<std::uint32_t>(_mm_movemask_epi8(isQuote));
    auto boundaryBits = static_cast<std::uint32_t>(_mm_movemask_epi8(isBoundary));
    const auto blankBits = static_cast<std::uint32_t>(_mm_movemask_epi8(startsBlank));
    // A boundary lies within the line when its second quote does; what stands behind the line is
    // cut off the last block.
    const std::size_t left = line.size() - at;
    if (left < block + 2) {
      // The quote that closes the line is no boundary's: it is cut off too.
      const std::uint32_t inLine = left > block ? 0xFFFFU : (1U << (left - 1)) - 1U;
      quoteBits &= inLine;
      boundaryBits &= left <= 2 ? 0U : (1U << (left - 2)) - 1U;
    }
    leadingBlanks |= blankBits & boundaryBits;
    secondQuotes |= boundaryBits << 2U;
    // Boundaries that share a quote mean a value that is a comma, or a line that begins with one;
    // a quote of no boundary stands inside a value.
    const std::uint32_t sharedQuotes = boundaryBits & secondQuotes;
    const std::uint32_t innerQuotes = quoteBits & ~(boundaryBits | secondQuotes);
    if ((sharedQuotes | innerQuotes) != 0) return 0;
    secondQuotes >>= block;
    for (; boundaryBits != 0; boundaryBits &= boundaryBits - 1) {
      offsets[count++] = static_cast<FieldOffset>(
          at + static_cast<std::size_t>(std::countr_zero(boundaryBits)) + BoundaryLength);
    }
  }
  // The last value must not begin behind the closing quote.
  const bool isRegular = leadingBlanks == 0 && offsets[count - 1] < line.size();
  return isRegular ? Finish(line, offsets, count) : 0;
}

#else

std::size_t ScanRegularFields(std::string_view line, FieldOffset* offsets) {
  return ScanRegularFieldsPlainly(line, offsets);
}

#endif

}  // namespace quorvane

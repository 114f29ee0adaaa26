#include "findings/sha256.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace quorvane {
namespace {

constexpr std::size_t BlockSize = 64;
constexpr std::size_t RoundCount = 64;

using HashState = std::array<std::uint32_t, 8>;
using HashBlock = std::array<unsigned char, BlockSize>;

constexpr HashState StartState{0x6A09E667, 0xBB67AE85, 0x3C6EF372, 0xA54FF53A,
                               0x510E527F, 0x9B05688C, 0x1F83D9AB, 0x5BE0CD19};

constexpr std::array<std::uint32_t, RoundCount> RoundConstants{
    0x428A2F98, 0x71374491, 0xB5C0FBCF, 0xE9B5DBA5, 0x3956C25B, 0x59F111F1, 0x923F82A4, 0xAB1C5ED5,
    0xD807AA98, 0x12835B01, 0x243185BE, 0x550C7DC3, 0x72BE5D74, 0x80DEB1FE, 0x9BDC06A7, 0xC19BF174,
    0xE49B69C1, 0xEFBE4786, 0x0FC19DC6, 0x240CA1CC, 0x2DE92C6F, 0x4A7484AA, 0x5CB0A9DC, 0x76F988DA,
    0x983E5152, 0xA831C66D, 0xB00327C8, 0xBF597FC7, 0xC6E00BF3, 0xD5A79147, 0x06CA6351, 0x14292967,
    0x27B70A85, 0x2E1B2138, 0x4D2C6DFC, 0x53380D13, 0x650A7354, 0x766A0ABB, 0x81C2C92E, 0x92722C85,
    0xA2BFE8A1, 0xA81A664B, 0xC24B8B70, 0xC76C51A3, 0xD192E819, 0xD6990624, 0xF40E3585, 0x106AA070,
    0x19A4C116, 0x1E376C08, 0x2748774C, 0x34B0BCB5, 0x391C0CB3, 0x4ED8AA4A, 0x5B9CCA4F, 0x682E6FF3,
    0x748F82EE, 0x78A5636F, 0x84C87814, 0x8CC70208, 0x90BEFFFA, 0xA4506CEB, 0xBEF9A3F7, 0xC67178F2};

std::array<std::uint32_t, RoundCount> MessageSchedule(const unsigned char* block) {
  std::array<std::uint32_t, RoundCount> words{};
  for (std::size_t index = 0; index < 16; ++index) {
    const unsigned char* bytes = block + 4 * index;
    words[index] = (std::uint32_t{bytes[0]} << 24U) | (std::uint32_t{bytes[1]} << 16U) |
                   (std::uint32_t{bytes[2]} << 8U) | bytes[3];
  }
  for (std::size_t index = 16; index < RoundCount; ++index) {
    const std::uint32_t early = words[index - 15];
    const std::uint32_t late = words[index - 2];
    words[index] = words[index - 16] + words[index - 7] +
                   (std::rotr(early, 7) ^ std::rotr(early, 18) ^ (early >> 3U)) +
                   (std::rotr(late, 17) ^ std::rotr(late, 19) ^ (late >> 10U));
  }
  return words;
}

void TakeBlock(HashState& state, const unsigned char* block) {
  const std::array<std::uint32_t, RoundCount> words = MessageSchedule(block);
  auto [a, b, c, d, e, f, g, h] = state;
  for (std::size_t round = 0; round < RoundCount; ++round) {
    const std::uint32_t first = h + (std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25)) +
                                ((e & f) ^ (~e & g)) + RoundConstants[round] + words[round];
    const std::uint32_t second =
        (std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22)) + ((a & b) ^ (a & c) ^ (b & c));
    h = g;
    g = f;
    f = e;
    e = d + first;
    d = c;
    c = b;
    b = a;
    a = first + second;
  }
  const HashState rounds{a, b, c, d, e, f, g, h};
  for (std::size_t index = 0; index < state.size(); ++index)
    state[index] += rounds[index];
}

/// The rest of the bytes, a bit set behind them, and the length of the whole in bits.
void TakeEnd(HashState& state, std::string_view rest, std::uint64_t byteCount) {
  constexpr std::size_t lengthSize = 8;
  std::array<unsigned char, 2 * BlockSize> end{};
  std::memcpy(end.data(), rest.data(), rest.size());
  end[rest.size()] = 0x80;
  const std::size_t size = rest.size() + 1 + lengthSize <= BlockSize ? BlockSize : 2 * BlockSize;
  const std::uint64_t bitCount = byteCount * 8;
  for (std::size_t index = 0; index < lengthSize; ++index)
    end[size - 1 - index] = static_cast<unsigned char>(bitCount >> (8 * index));
  for (std::size_t start = 0; start < size; start += BlockSize)
    TakeBlock(state, end.data() + start);
}

}  // namespace

std::string Sha256(std::string_view bytes) {
  HashState state = StartState;
  HashBlock block{};
  std::string_view rest = bytes;
  for (; rest.size() >= BlockSize; rest.remove_prefix(BlockSize)) {
    std::memcpy(block.data(), rest.data(), BlockSize);
    TakeBlock(state, block.data());
  }
  TakeEnd(state, rest, bytes.size());

  constexpr std::string_view digits = "0123456789abcdef";
  std::string text;
  text.reserve(BlockSize);
  for (const std::uint32_t word : state) {
    for (int shift = 28; shift >= 0; shift -= 4)
      text.push_back(digits[(word >> static_cast<unsigned>(shift)) & 0xFU]);
  }
  return text;
}

}  // namespace quorvane

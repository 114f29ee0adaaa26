#include "run/standard_streams.h"

#include <cstdio>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "support/random_text.h"

namespace quorvane::test {
namespace {

struct FileCloser {
  void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};

using Writer = std::error_code (*)(std::FILE*, std::string_view);

/// What a file holds after a text was written to it as to a stream.
std::string Written(std::string_view text, Writer write = WriteToStream) {
  const std::unique_ptr<std::FILE, FileCloser> file(std::tmpfile());
  if (!file) return "no temporary file";
  EXPECT_FALSE(write(file.get(), text));
  std::rewind(file.get());
  std::string content;
  for (int letter = std::fgetc(file.get()); letter != EOF; letter = std::fgetc(file.get()))
    content += static_cast<char>(letter);
  return content;
}

/// The text as a stream of the system takes it, letter by letter.
std::string Expected(std::string_view text) {
  std::string expected;
  for (std::size_t at = 0; at < text.size(); ++at) {
#if !defined(_WIN32)
    if (text.substr(at).starts_with("\r\n")) continue;
#endif
    expected += text[at];
  }
  return expected;
}

TEST(WriteToStream, TakesLineBreaksAsTheSystemHasThem) {
  for (const char* text : {"", "a", "a\r\n", "\r\n", "a\r\nb", "a\nb", "a\rb", "\r\r\n", "a\r"})
    EXPECT_EQ(Written(text), Expected(text));
}

TEST(WriteToStream, TakesTextsOfAnyLength) {
  static constexpr std::string_view pieces[] = {"\r\n", "\r", "\n", "a", "some more words"};
  RandomText random(43);
  for (int round = 0; round < 20; ++round) {
    const std::string text = random.Joined(pieces, random.Below(60000));
    EXPECT_EQ(Written(text), Expected(text));
  }
}

TEST(WriteToStream, ALineBreakMayStandAnywhere) {
  constexpr std::size_t block = std::size_t{1} << 16U;
  for (std::size_t before = block - 4; before < block + 4; ++before) {
    for (const char* lineBreak : {"\r\n", "\r\r\n", "\r"}) {
      const std::string text = std::string(before, 'x') + lineBreak + "behind";
      EXPECT_EQ(Written(text), Expected(text));
    }
  }
}

TEST(WriteBytesToStream, LeavesEveryByteAsItIs) {
  using namespace std::string_literals;
  for (const std::string& bytes :
       {""s, "a\r\nb\nc\rd"s, "\0\x1B[2J\xFF"s, std::string(1'000'000, '\n')})
    EXPECT_EQ(Written(bytes, WriteBytesToStream), bytes);
}

}  // namespace
}  // namespace quorvane::test

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "parse/structure_parser.h"
#include "support/recorded_log.h"
#include "text/comma_list.h"
#include "text/text.h"

namespace quorvane::test {

/// Takes names as they are, headings in capitals, and writes down what it is told.
class RecordingListener : public StructureListener {
 public:
  explicit RecordingListener(const GroupTable& table) : table_(table) {}

  std::string ReadGroupName(int group, std::int32_t lineNumber, std::string_view line) override {
    Note("name " + std::to_string(group) + " at " + std::to_string(lineNumber) + ": " +
         std::string(line));
    return Without(Without(line, '"'), '*');
  }
  void GroupOpened(int group) override { Note("opened " + std::to_string(group)); }
  std::string ReadHeading(const MessagePlace& place, std::int32_t lineNumber,
                          std::string heading) override {
    Note("heading " + std::to_string(place.group) + "." + std::to_string(place.heading) + " at " +
         std::to_string(lineNumber) + ": " + heading);
    return UpperCase(heading);
  }
  void HeadersRead(int group, bool hasData) override {
    Note("headers of " + std::to_string(group) + (hasData ? " with data" : " without data") +
         ", rows " + std::to_string(table_.At(group).rowCount));
  }
  void GroupEnded(int group) override {
    Note("ended " + std::to_string(group) + ", rows " + std::to_string(table_.At(group).rowCount));
  }
  void FileEnded() override { Note("file ended"); }

  const std::vector<std::string>& Events() const { return events_; }

 private:
  void Note(std::string event) { events_.push_back(std::move(event)); }

  const GroupTable& table_;
  std::vector<std::string> events_;
};

/// What the parser makes of lines, ABBR and CODE being the groups that take no units.
class Parsed {
 public:
  Parsed(AgsFormat format, const std::vector<std::string>& lines)
      : Parsed(format, lines, {1, static_cast<std::int32_t>(lines.size())}) {}

  Parsed(AgsFormat format, const std::vector<std::string>& lines, LineRange range)
      : file_(ByteBuffer(Join(lines, "\n"))), recorded_(format) {
    const std::vector<std::string> withoutUnits{"ABBR", "CODE"};
    StructureParser parser(file_, format, withoutUnits, table_, listener_, recorded_.Log());
    parser.ParseStructure(range);
  }

  const GroupTable& Table() const { return table_; }
  const std::vector<std::string>& Events() const { return listener_.Events(); }
  const std::vector<std::string>& Sections() { return recorded_.Log().Sections(); }
  std::vector<std::string> Findings() { return recorded_.Findings(); }
  std::vector<MessagePlace> Places() { return recorded_.Places(); }

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (int group = 1; group <= table_.GroupCount(); ++group) {
      names.push_back(table_.At(group).name);
    }
    return names;
  }

  std::vector<std::string> Headings(int group) const { return OfHeadings(group, &Heading::name); }
  std::vector<std::string> Units(int group) const { return OfHeadings(group, &Heading::unit); }
  std::vector<std::string> Types(int group) const { return OfHeadings(group, &Heading::type); }

  std::vector<std::string> Row(int group, std::int32_t row) const {
    std::vector<std::string> values;
    for (int column = 1; column <= table_.At(group).HeadingCount(); ++column) {
      values.emplace_back(table_.Value(group, row, column));
    }
    return values;
  }

 private:
  std::vector<std::string> OfHeadings(int group, std::string Heading::*part) const {
    std::vector<std::string> texts;
    for (const Heading& heading : table_.At(group).headings) {
      texts.push_back(heading.*part);
    }
    return texts;
  }

  FileText file_;
  GroupTable table_{file_};
  RecordingListener listener_{table_};
  RecordedLog recorded_;
};

inline std::vector<std::string> Found(AgsFormat format, const std::vector<std::string>& lines) {
  return Parsed(format, lines).Findings();
}

/// A line of headings H_1, H_2 and so on.
inline std::string HeadingLine(int count) {
  std::string line;
  for (int heading = 1; heading <= count; ++heading) {
    line += (heading == 1 ? "\"*H_" : ",\"*H_") + std::to_string(heading) + "\"";
  }
  return line;
}

}  // namespace quorvane::test

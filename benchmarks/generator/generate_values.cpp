#include "generate_values.h"

#include <array>
#include <charconv>
#include <span>

namespace quorvane::generate {

namespace {

constexpr std::uint32_t kLocationsPerFileSet = 4;

struct Date {
  int year = 0;
  int month = 0;
  int day = 0;
};

/// Calendar date of a day counted from 1 January 1970, in the Gregorian calendar's cycle of 400
/// years that begin in March.
Date DateOf(int day) {
  const int shifted = day + 719468;
  const int era = shifted / 146097;
  const int dayOfEra = shifted % 146097;
  const int yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
  const int dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const int month = (5 * dayOfYear + 2) / 153;
  Date date;
  date.day = dayOfYear - (153 * month + 2) / 5 + 1;
  date.month = month < 10 ? month + 3 : month - 9;
  date.year = yearOfEra + era * 400 + (date.month <= 2 ? 1 : 0);
  return date;
}

void AppendPadded(std::string& text, int value, int width) {
  int power = 10;
  for (int digits = 1; digits < width; ++digits) {
    if (value < power) text.push_back('0');
    power *= 10;
  }
  AppendWhole(text, value);
}

std::string_view WordOf(ListId list, Random& random) {
  const std::span<const Code> entries = EntriesOf(list);
  return entries[random.Skewed(static_cast<std::uint32_t>(entries.size()))].code;
}

void AppendSampleKey(std::string& text, const Location& location, const Sample& sample) {
  text.append("SAMP|").append(location.id).push_back('|');
  AppendFixed(text, sample.top, 2);
  text.push_back('|');
  AppendWhole(text, sample.number);
  text.push_back('|');
  text.append(EntriesOf(ListId::SampleType)[sample.typeIndex].code).push_back('|');
  AppendSampleId(text, location, sample);
}

}  // namespace

void AppendWhole(std::string& text, int value) {
  std::array<char, 12> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
  text.append(digits.data(), end);
}

void AppendFixed(std::string& text, int value, int decimals) {
  if (decimals == 0) {
    AppendWhole(text, value);
    return;
  }
  if (value < 0) {
    text.push_back('-');
    value = -value;
  }
  int unit = 1;
  for (int i = 0; i < decimals; ++i)
    unit *= 10;
  AppendWhole(text, value / unit);
  text.push_back('.');
  AppendPadded(text, value % unit, decimals);
}

void AppendMoment(std::string& text, std::string_view pattern, int day, int minute) {
  const Date date = DateOf(day);
  bool afterHour = false;
  while (!pattern.empty()) {
    std::size_t length = 2;
    if (pattern.starts_with("yyyy")) {
      AppendPadded(text, date.year, 4);
      length = 4;
    } else if (pattern.starts_with("mm")) {
      AppendPadded(text, afterHour ? minute % 60 : date.month, 2);
    } else if (pattern.starts_with("dd")) {
      AppendPadded(text, date.day, 2);
    } else if (pattern.starts_with("hh")) {
      AppendPadded(text, minute / 60, 2);
      afterHour = true;
    } else if (pattern.starts_with("ss")) {
      text.append("00");
    } else {
      text.push_back(pattern.front());
      length = 1;
    }
    pattern.remove_prefix(length);
  }
}

void AppendAngle(std::string& text, int degrees, Random& random) {
  AppendWhole(text, degrees);
  text.push_back(':');
  AppendPadded(text, random.Between(0, 59), 2);
  text.push_back(':');
  AppendPadded(text, random.Between(0, 59), 2);
  text.push_back('.');
  AppendPadded(text, random.Between(0, 99), 2);
}

void AppendDescription(std::string& text, Random& random) {
  AppendWords(text, ListId::Strength, random);
  text.push_back(' ');
  AppendWords(text, ListId::Colour, random);
  text.push_back(' ');
  AppendWords(text, ListId::Secondary, random);
  text.push_back(' ');
  AppendWords(text, ListId::Principal, random);
  text.push_back('.');
  const std::uint32_t details = random.Skewed(5);
  for (std::uint32_t i = 0; i < details; ++i) {
    text.push_back(' ');
    AppendWords(text, ListId::Detail, random);
  }
}

void AppendWords(std::string& text, ListId list, Random& random) {
  text.append(WordOf(list, random));
}

void AppendSampleId(std::string& text, const Location& location, const Sample& sample) {
  AppendWhole(text, static_cast<int>(location.index) + 1);
  text.push_back('-');
  AppendWhole(text, sample.number);
}

void AppendLink(std::string& text, const Site& site, const Location& location, const Sample& sample,
                Random& random) {
  const bool toSample = sample.number > 1 && random.Chance(80);
  if (toSample) AppendSampleKey(text, location, site.SampleAt(location, sample.number - 2));
  if (toSample && !random.Chance(20)) return;
  if (toSample) text.push_back('+');
  text.append("LOCA|").append(location.id);
}

void AppendFileSet(std::string& text, const Location& location) {
  text.append("FS");
  AppendPadded(text, static_cast<int>(location.index / kLocationsPerFileSet) + 1, 5);
}

bool OpensFileSet(const Location& location) {
  return location.index % kLocationsPerFileSet == 0;
}

}  // namespace quorvane::generate

#include "findings/earlier_run.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <nlohmann/json.hpp>
#include <utility>

namespace quorvane {
namespace {

using nlohmann::json;

constexpr std::string_view FormatName = "quorvane-findings";
constexpr std::int64_t FormatVersion = 1;

Severity SeverityNamed(std::string_view word) {
  constexpr std::array severities{Severity::Error, Severity::Warning, Severity::Fyi};
  const auto* const found =
      std::find_if(severities.begin(), severities.end(),
                   [word](Severity severity) { return SeverityWord(severity) == word; });
  return found != severities.end() ? *found : Severity::Plain;
}

/// Takes the JSON value after value, so that a run with a million findings needs no tree of them.
class EarlierRunHandler : public json::json_sax_t {
 public:
  explicit EarlierRunHandler(EarlierRun& run) : run_(run) {}

  /// Why the text is not the data of a run, once it has been read to its end.
  std::optional<std::string> Failure() const {
    if (failure_) return failure_;
    if (!hasFormat_) return "is not a file that --format json has written";
    if (version_ != FormatVersion) return "is of a version that this program does not know";
    if (!hasFiles_) return "has no list of files";
    return std::nullopt;
  }

  bool null() override { return true; }
  bool boolean(bool /*value*/) override { return true; }
  bool number_integer(json::number_integer_t value) override { return TakeNumber(value); }
  bool number_unsigned(json::number_unsigned_t value) override {
    constexpr auto largest = std::numeric_limits<std::int64_t>::max();
    return TakeNumber(value > largest ? largest : static_cast<std::int64_t>(value));
  }
  bool number_float(json::number_float_t /*value*/, const json::string_t& /*text*/) override {
    return true;
  }
  bool binary(json::binary_t& /*value*/) override { return true; }  // JSON has none

  bool string(json::string_t& value) override {
    if (IsIn(Place::Run) && key_ == "format") hasFormat_ = value == FormatName;
    if (IsIn(Place::File) && key_ == "path") run_.files.back().path = value;
    if (IsIn(Place::Finding)) TakeFindingText(value);
    return true;
  }

  bool start_object(std::size_t /*count*/) override {
    places_.push_back(ObjectPlace());
    if (IsIn(Place::File)) run_.files.emplace_back();
    if (IsIn(Place::Finding)) run_.files.back().findings.emplace_back();
    return true;
  }

  bool end_object() override {
    const bool lacksId = IsIn(Place::Finding) && run_.files.back().findings.back().id.empty();
    if (lacksId) failure_ = "has a finding without its id";
    places_.pop_back();
    return !lacksId;
  }

  bool start_array(std::size_t /*count*/) override {
    places_.push_back(ArrayPlace());
    hasFiles_ = hasFiles_ || IsIn(Place::Files);
    return true;
  }

  bool end_array() override {
    places_.pop_back();
    return true;
  }

  bool key(json::string_t& value) override {
    key_ = value;
    return true;
  }

  bool parse_error(std::size_t position, const std::string& /*token*/,
                   const json::exception& /*error*/) override {
    failure_ = "is no JSON: mistake at byte " + std::to_string(position);
    return false;
  }

 private:
  /// The objects and arrays that matter: {"files": [{"findings": [{...}]}]}.
  enum class Place : std::uint8_t { Run, Files, File, Findings, Finding, Elsewhere };

  bool IsIn(Place place) const { return !places_.empty() && places_.back() == place; }

  Place ObjectPlace() const {
    if (places_.empty()) return Place::Run;
    if (IsIn(Place::Files)) return Place::File;
    return IsIn(Place::Findings) ? Place::Finding : Place::Elsewhere;
  }

  Place ArrayPlace() const {
    if (IsIn(Place::Run) && key_ == "files") return Place::Files;
    return IsIn(Place::File) && key_ == "findings" ? Place::Findings : Place::Elsewhere;
  }

  bool TakeNumber(std::int64_t value) {
    constexpr std::int64_t lastLine = std::numeric_limits<std::int32_t>::max();
    if (IsIn(Place::Run) && key_ == "formatVersion") version_ = value;
    if (IsIn(Place::Finding) && key_ == "line" && value > 0) {
      run_.files.back().findings.back().line = static_cast<std::int32_t>(std::min(value, lastLine));
    }
    return true;
  }

  void TakeFindingText(std::string_view value) {
    EarlierFinding& finding = run_.files.back().findings.back();
    if (key_ == "severity") finding.severity = SeverityNamed(value);
    struct Member {
      std::string_view name;
      std::string_view EarlierFinding::*text;
    };
    static constexpr std::array members{
        Member{"id", &EarlierFinding::id}, Member{"group", &EarlierFinding::group},
        Member{"key", &EarlierFinding::key}, Member{"heading", &EarlierFinding::heading},
        Member{"text", &EarlierFinding::text}};
    for (const Member& member : members) {
      if (member.name == key_) finding.*member.text = run_.texts.Keep(value);
    }
  }

  EarlierRun& run_;
  std::string key_;
  std::vector<Place> places_;  // from the outermost one to that of the next value
  bool hasFiles_ = false;
  bool hasFormat_ = false;
  std::int64_t version_ = 0;
  std::optional<std::string> failure_;
};

}  // namespace

EarlierRunReading ReadEarlierRun(std::string_view json) {
  EarlierRunReading reading;
  EarlierRunHandler handler(reading.run);
  nlohmann::json::sax_parse(json.begin(), json.end(), &handler);
  reading.failure = handler.Failure();
  return reading;
}

}  // namespace quorvane

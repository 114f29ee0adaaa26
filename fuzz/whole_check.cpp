#include "whole_check.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "report/run_log.h"
#include "run/check_file.h"
#include "statistics/data_statistics.h"

namespace quorvane::fuzz {
namespace {

constexpr const char* CustomSchema = "ags42 dict.gas";

std::string ReadWhole(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "Does not hold: %s\n", what);
  std::abort();
}

WholeCheck::WholeCheck() : dictionaries_(fakes_.disk, fakes_.environment.ProgramFolder()) {
  const std::string folder = std::string(QUORVANE_SCHEMA_FOLDER) + "/";
  for (const std::string name : {"ags4 dict.gas", "ags404 dict.gas"}) {
    fakes_.disk.files[fakes_.environment.ProgramFolder() + "/" + name] = ReadWhole(folder + name);
  }
  fakes_.disk.files[CustomSchema] = ReadWhole(folder + CustomSchema);
  fakes_.window.settings.listings = {true, true, true};
  fakes_.window.settings.showStatistics = true;
  fakes_.window.settings.customDictionary = CustomSchema;
}

void WholeCheck::Run(std::string_view content) {
  const FileToCheck file{"test.ags", 1, 1};
  fakes_.disk.files[file.path] = content;
  fakes_.window.settings.suppressFyi = content.size() % 8 == 1;
  fakes_.window.settings.useCustomDictionary = content.size() % 4 == 2;
  fakes_.progressBox.shown.clear();
  RunLog runLog(fakes_.progressBox);
  StatisticsState statistics;
  CheckAGSFile(fakes_.All(), dictionaries_, runLog, statistics, file);

  for (const std::string& box : fakes_.messages.boxes) {
    std::fprintf(stderr, "%s\n", box.c_str());
  }
  Require(fakes_.messages.boxes.empty(), "no routine fails");
  Require(runLog.FullText().find(std::string(39, '*') + "\r\n\r\n") != std::string::npos,
          "the report has its closing line");
  fakes_.messages.notes.clear();
  fakes_.parentChoice.questions.clear();
}

}  // namespace quorvane::fuzz

#pragma once

#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "run/check_run.h"
#include "support/fake_services.h"
#include "text/text.h"

namespace quorvane::test {

/// What closes the text of every file.
inline const std::string ClosingLines = std::string(39, '*') + "\r\n\r\n";

/// An AGS 3 file of 17 lines without any finding, with CR LF line ends. The project's name stands
/// in line 4 from position 7 on.
inline std::string Ags3WithProjectName(std::string_view name) {
  return ReplaceAll(
      "\"**PROJ\"\n"
      "\"*PROJ_ID\",\"*PROJ_NAME\",\"*PROJ_AGS\"\n"
      "\"<UNITS>\",\"\",\"\"\n"
      "\"P1\",\"" +
          std::string(name) +
          "\",\"3.1\"\n"
          "\n"
          "\"**UNIT\"\n"
          "\"*UNIT_UNIT\",\"*UNIT_DESC\"\n"
          "\"m\",\"metre\"\n"
          "\n"
          "\"**ABBR\"\n"
          "\"*ABBR_HDNG\",\"*ABBR_CODE\",\"*ABBR_DESC\"\n"
          "\"HOLE_TYPE\",\"CP\",\"Cable percussion\"\n"
          "\n"
          "\"**HOLE\"\n"
          "\"*HOLE_ID\",\"*HOLE_TYPE\",\"*HOLE_FDEP\"\n"
          "\"<UNITS>\",\"\",\"m\"\n"
          "\"BH1\",\"CP\",\"10.00\"\n",
      "\n", LineBreak);
}

inline std::string CleanAgs3() {
  return Ags3WithProjectName("Test project");
}

/// The same with some tabs for a project name: as many findings of Rule 1 and no other.
inline std::string Ags3WithTabs(std::size_t count) {
  return Ags3WithProjectName(std::string(count, '\t'));
}

/// A disk that counts how often each file is read.
class CountingDisk : public MemoryDisk {
 public:
  Reading Read(const std::string& path) override {
    ++reads[path];
    return MemoryDisk::Read(path);
  }

  std::map<std::string, int> reads;
};

/// Message boxes that are written down with their kinds.
class RecordingBoxes : public RecordingMessages {
 public:
  void ShowBox(std::string_view title, std::string_view text, BoxKind kind) override {
    RecordingMessages::ShowBox(title, text, kind);
    kinds.push_back(kind);
  }

  std::vector<BoxKind> kinds;
};

struct CountingServices {
  CountingDisk disk;
  FixedEnvironment environment;
  RecordingBoxes messages;
  RecordingProgressBox progressBox;
  RecordingWindow window;
  RecordingParentChoice parentChoice{messages};

  Services All() { return With(window); }

  /// The same with another window.
  Services With(CheckWindow& otherWindow) {
    return {disk, environment, messages, progressBox, otherWindow, parentChoice};
  }
};

/// Runs over files in memory; the program folder holds the schema files of the build.
class RunTest : public testing::Test {
 protected:
  RunTest() {
    for (const std::string name : {"ags4 dict.gas", "ags404 dict.gas", "ags41 dict.gas"}) {
      std::ifstream file(std::string(QUORVANE_SCHEMA_FOLDER) + "/" + name, std::ios::binary);
      services_.disk.files["/program/" + name].assign(std::istreambuf_iterator<char>(file), {});
    }
  }

  void Put(const std::string& path, const std::string& content) {
    services_.disk.files[path] = content;
  }

  /// Checks the files of a list, one per line.
  CheckStatus Check(const std::string& files) {
    services_.window.settings.filesToCheck = files;
    return run_.ExecuteChecking();
  }

  CountingServices services_;
  CheckRun run_{services_.All()};
};

}  // namespace quorvane::test

#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "dictionary/custom_groups.h"
#include "dictionary/dictionary_store.h"
#include "run/row_order.h"
#include "run/system_disk.h"
#include "support/check_text.h"
#include "support/fake_services.h"

namespace quorvane::test {

/// A DICT row as the tests state it.
struct CustomRow {
  std::string type;
  std::string group;
  std::string heading;
  std::string status;
  std::string parent;
};

inline CustomRow DefinesGroup(std::string name, std::string parent = "") {
  return {"GROUP", std::move(name), "", "", std::move(parent)};
}

inline CustomRow DefinesHeading(std::string group, std::string heading, std::string status) {
  return {"HEADING", std::move(group), std::move(heading), std::move(status), ""};
}

inline std::vector<std::vector<std::string>> ValuesOf(const std::vector<CustomRow>& rows) {
  std::vector<std::vector<std::string>> values;
  values.reserve(rows.size());
  for (const CustomRow& row : rows) {
    values.push_back({row.type, row.group, row.heading, row.status, row.parent});
  }
  return values;
}

inline std::string Ags3Dict(const std::vector<CustomRow>& rows) {
  Ags3File file;
  file.Group("DICT", {"DICT_TYPE", "DICT_GRP", "DICT_HDNG", "DICT_STAT", "?DICT_PGRP"}, {},
             ValuesOf(rows));
  return file.Text();
}

inline std::string Ags4Dict(const std::vector<CustomRow>& rows) {
  Ags4File file;
  file.Group("DICT", {"DICT_TYPE", "DICT_GRP", "DICT_HDNG", "DICT_STAT", "DICT_PGRP"},
             {"", "", "", "", ""}, {"PA", "X", "X", "PA", "X"}, ValuesOf(rows));
  return file.Text();
}

/// The dictionary of a file on its own, with everything that BuildCustomGroupProps works on.
class CustomDictionary {
 public:
  explicit CustomDictionary(AgsFormat format) : format_(format) {
    SystemDisk disk;
    groups = BuildAgsDictionary(disk, {format, false, ""}, QUORVANE_SCHEMA_FOLDER);
    log.SetFormat(format);
  }

  void Add(const std::string& text) { Add(text, services.parentChoice); }

  void Add(const std::string& text, ParentChoice& choice) {
    FileText file{ByteBuffer(text)};
    if (format_ == AgsFormat::Ags4) ConvertAgs4Rows(file, log);
    BuildCustomGroupProps({file, format_, "test.ags", groups, added, log, choice});
  }

  const DictGroup& Of(std::string_view name) const {
    const int index = groups.FindDictGroup(name);
    if (index == 0) throw std::runtime_error("no group " + std::string(name));
    return groups.Group(index);
  }

  const std::vector<RecordingParentChoice::Question>& Questions() const {
    return services.parentChoice.questions;
  }

  AgsDictionary groups;
  AddedHeadings added;
  FakeServices services;
  RunLog runLog{services.progressBox};
  MessageLog log{runLog, false};

 private:
  AgsFormat format_;
};

class Ags3DictTest : public testing::Test {
 protected:
  CustomDictionary dictionary{AgsFormat::Ags3};
};

class Ags4DictTest : public testing::Test {
 protected:
  CustomDictionary dictionary{AgsFormat::Ags4};
};

}  // namespace quorvane::test

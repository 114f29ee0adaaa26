#include "report/log_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_services.h"

namespace quorvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A dialog whose answer is set beforehand.
class ScriptedDialog : public SaveDialog {
 public:
  std::optional<std::string> ChooseFile(std::string_view title, std::string_view filter) override {
    asked.push_back(std::string(title) + " / " + std::string(filter));
    return answer;
  }

  std::optional<std::string> answer;
  std::vector<std::string> asked;
};

/// An editor that writes down what it should open.
class RecordingEditor : public TextEditor {
 public:
  void Open(const std::string& path) override { opened.push_back(path); }

  std::vector<std::string> opened;
};

struct Desk {
  MemoryDisk disk;
  RecordingMessages messages;
  ScriptedDialog dialog;
  RecordingEditor editor;

  void View(std::string_view text) { ViewReport(disk, messages, dialog, editor, text); }
};

TEST(SaveLogFile, WritesTheTextAndALineBreak) {
  Desk desk;
  desk.disk.files["out.txt"] = "what was there before, longer than what comes";
  EXPECT_FALSE(SaveLogFile(desk.disk, desk.messages, "out.txt", "line\r\n"));
  EXPECT_EQ(desk.disk.files.at("out.txt"), "line\r\n\r\n");
  EXPECT_THAT(desk.messages.boxes, IsEmpty());
}

TEST(SaveFile, WritesTheTextsAsTheyAre) {
  Desk desk;
  EXPECT_FALSE(SaveFile(desk.disk, desk.messages, "out.csv", "line\n", "end"));
  EXPECT_EQ(desk.disk.files.at("out.csv"), "line\nend");
}

TEST(SaveLogFile, SaysWhyItFailed) {
  Desk desk;
  desk.disk.writeFailures["C:\\Logs\\Out.txt"] = {70, "Permission denied"};
  EXPECT_TRUE(SaveLogFile(desk.disk, desk.messages, "C:\\Logs\\Out.txt", "line"));
  EXPECT_THAT(desk.messages.boxes,
              ElementsAre("Quorvane: Could not save to file C:\\Logs\\Out.txt\r\nError:  70\r\n"
                          "Permission denied"));
  EXPECT_THAT(desk.disk.files, IsEmpty());
}

TEST(ViewReport, SavesUnderTheLowerCaseNameAndOpensIt) {
  Desk desk;
  desk.dialog.answer = "Report Of Today.TXT";
  desk.View("the log");
  EXPECT_THAT(desk.dialog.asked, ElementsAre("AGS Checking Log File / Text File (*.txt)|*.txt"));
  EXPECT_EQ(desk.disk.files.at("report of today.txt"), "the log\r\n");
  EXPECT_EQ(desk.disk.files.size(), 1U);
  EXPECT_THAT(desk.editor.opened, ElementsAre("report of today.txt"));
}

TEST(ViewReport, LeavesTheNamesOfFoldersAsTheyAre) {
  Desk desk;
  for (const char* path : {"/Home/Logs/Out.TXT", "C:\\Logs\\Out.TXT", "C:\\Logs/Out.TXT"}) {
    desk.dialog.answer = path;
    desk.View("the log");
  }
  EXPECT_THAT(desk.editor.opened,
              ElementsAre("/Home/Logs/out.txt", "C:\\Logs\\out.txt", "C:\\Logs/out.txt"));
}

TEST(ViewReport, EndsSilentlyWhenTheUserCancels) {
  Desk desk;
  desk.View("the log");
  EXPECT_THAT(desk.disk.files, IsEmpty());
  EXPECT_THAT(desk.messages.boxes, IsEmpty());
  EXPECT_THAT(desk.editor.opened, IsEmpty());
}

TEST(ViewReport, OpensNothingThatCouldNotBeSaved) {
  Desk desk;
  desk.dialog.answer = "/full/Out.txt";
  desk.disk.writeFailures["/full/out.txt"] = {28, "No space left on device"};
  desk.View("the log");
  EXPECT_THAT(desk.messages.boxes,
              ElementsAre("Quorvane: Could not save to file /full/out.txt\r\nError:  28\r\n"
                          "No space left on device"));
  EXPECT_THAT(desk.editor.opened, IsEmpty());
}

}  // namespace
}  // namespace quorvane::test

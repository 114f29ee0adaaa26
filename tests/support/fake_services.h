#pragma once

#include <array>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "dictionary/parent_choice.h"
#include "report/disk.h"
#include "report/user_interface.h"
#include "run/check_window.h"
#include "run/environment.h"
#include "run/services.h"

namespace quorvane::test {

/// A disk in memory. Faults are set per path. A folder is there when a file stands below it, with
/// "/" between.
class MemoryDisk : public Disk {
 public:
  FileFacts Examine(const std::string& path) override;
  Reading Read(const std::string& path) override;
  Listing List(const std::string& folder) override;
  std::optional<FileFailure> Write(const std::string& path, std::string_view text,
                                   std::string_view ending) override;

  std::map<std::string, std::string> files;
  std::map<std::string, std::uint64_t> statedSizes;  // instead of the content's size
  std::map<std::string, FileFailure> obstacles;      // cannot be read: a folder, a device
  std::map<std::string, FileFailure> readFailures;   // fails while it is read
  std::map<std::string, FileFailure> writeFailures;  // cannot be written
  std::map<std::string, FileFailure> listFailures;   // folders that cannot be listed
  std::set<std::string> folders;                     // that hold no file
  std::set<std::string> folderLinks;                 // links to folders
  std::optional<std::string> throwsWhenRead;         // a failure that nobody expects
};

/// The path of a file in the program folder "/program", with the separator of this system.
std::string InProgramFolder(const std::string& name);

/// An environment in which nothing ever changes.
class FixedEnvironment : public Environment {
 public:
  std::string UserName() const override { return "tester"; }
  std::string ComputerName() const override { return "bench"; }
  std::string ProgramFolder() const override { return "/program"; }
  std::chrono::system_clock::time_point Now() const override { return {}; }
  std::string FormatDateTime(std::chrono::system_clock::time_point) const override {
    return "01/02/26 03:04:05";
  }
};

/// Message boxes that are written down.
class RecordingMessages : public UserMessages {
 public:
  void ShowBox(std::string_view title, std::string_view text, BoxKind kind) override;
  void Note(std::string_view text) override { notes.emplace_back(text); }

  std::vector<std::string> boxes;  // "TITLE: TEXT"
  std::vector<std::string> notes;
};

/// A progress box that keeps what it shows.
class RecordingProgressBox : public ProgressBox {
 public:
  void Insert(std::string_view text) override { shown.append(text); }
  void Clear() override { shown.clear(); }
  void ProcessPendingMessages() override { ++pendingMessageCalls; }

  std::string shown;
  int pendingMessageCalls = 0;
};

/// A window whose controls are set beforehand and whose events are written down.
class RecordingWindow : public CheckWindow {
 public:
  CheckSettings Settings() const override { return settings; }
  void SetFilesToCheck(const std::string& files) override { settings.filesToCheck = files; }
  void FocusFirstListing() override { events.emplace_back("focus first listing"); }
  void BeginRun() override { events.emplace_back("begin run"); }
  void BeginFile(std::string_view path, int number, int count) override;
  void EndChecking() override { events.emplace_back("end checking"); }
  void EndRun() override { events.emplace_back("end run"); }

  CheckSettings settings;
  std::vector<std::string> events;
};

/// A dialog for missing parent groups: questions are written down and answered from a script, or
/// as an unattended run does where the script has no answer.
class RecordingParentChoice : public ParentChoice {
 public:
  /// A question as the dialog would show it.
  struct Question {
    std::string file;
    std::string group;
    std::string label;
    std::array<std::vector<std::string>, 2> lists;  // group names
    bool showsSecondList = false;
    std::string preselected;
  };

  /// The messages must outlive the object.
  explicit RecordingParentChoice(UserMessages& messages) : unattended_(messages) {}

  RecordingParentChoice(const RecordingParentChoice&) = delete;
  RecordingParentChoice& operator=(const RecordingParentChoice&) = delete;

  std::string ShowDialog(const ParentLists& lists) override;

  std::vector<Question> questions;
  std::map<std::string, std::string> answers;  // by group
  std::optional<std::string> throwsForGroup;   // a failure that nobody expects

 private:
  UnattendedParentChoice unattended_;
};

/// All of them together.
struct FakeServices {
  MemoryDisk disk;
  FixedEnvironment environment;
  RecordingMessages messages;
  RecordingProgressBox progressBox;
  RecordingWindow window;
  RecordingParentChoice parentChoice{messages};

  Services All() { return {disk, environment, messages, progressBox, window, parentChoice}; }
};

}  // namespace quorvane::test

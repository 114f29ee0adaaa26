#pragma once

#include <string>

#include "report/log_file.h"
#include "report/user_interface.h"

namespace quorvane {

/// Other programs that the window starts.
class Desktop : public TextEditor {
 public:
  /// Opens a document with the program that is meant for its kind.
  virtual void OpenDocument(const std::string& path) = 0;
};

/// The programs of this computer. When one cannot be started a box says so.
class SystemDesktop : public Desktop {
 public:
  /// The messages must outlive the object.
  explicit SystemDesktop(UserMessages& messages) : messages_(messages) {}

  void Open(const std::string& path) override;
  void OpenDocument(const std::string& path) override;

 private:
  UserMessages& messages_;
};

}  // namespace quorvane

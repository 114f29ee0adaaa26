#pragma once

#include "dictionary/parent_choice.h"
#include "report/disk.h"
#include "report/user_interface.h"
#include "run/check_window.h"
#include "run/environment.h"

namespace quorvane {

class FindingsReceiver;

/// What a check run needs from the program around it. All of it must outlive the run.
struct Services {
  Disk& disk;
  Environment& environment;
  UserMessages& messages;
  ProgressBox& progressBox;
  CheckWindow& window;
  ParentChoice& parentChoice;
  FindingsReceiver* findings = nullptr;  // none: only the text is wanted
};

}  // namespace quorvane

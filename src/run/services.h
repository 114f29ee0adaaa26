#pragma once

#include "dictionary/parent_choice.h"
#include "report/disk.h"
#include "report/user_interface.h"
#include "run/check_window.h"
#include "run/environment.h"

namespace quorvane {

/// What a check run needs from the program around it. All of it must outlive the run.
struct Services {
  Disk& disk;
  Environment& environment;
  UserMessages& messages;
  ProgressBox& progressBox;
  CheckWindow& window;
  ParentChoice& parentChoice;
};

}  // namespace quorvane

#pragma once

#include "report/message.h"

namespace quorvane {

extern const MessageDefinition FileNameBodyTooLong;
extern const MessageDefinition FileNameExtensionTooLong;
extern const MessageDefinition FileGroupMissing;
extern const MessageDefinition FileSetNotDefined;
extern const MessageDefinition FileSetsUnused;

MessageTable FileSetMessages();

}  // namespace quorvane

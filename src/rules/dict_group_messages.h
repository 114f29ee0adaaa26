#pragma once

#include "report/message.h"

namespace quorvane {

extern const MessageDefinition DictGroupMissing;
extern const MessageDefinition DictGroupWithoutData;
extern const MessageDefinition DictKeyHeadingsMissing;
extern const MessageDefinition DictDescriptiveHeadingsMissing;
extern const MessageDefinition OwnGroupNotDefined;
extern const MessageDefinition OwnGroupWithoutDescription;
extern const MessageDefinition OwnGroupHeadingWithoutMark;
extern const MessageDefinition OwnHeadingNotDefined;
extern const MessageDefinition OwnHeadingWithoutStatus;
extern const MessageDefinition OwnHeadingWithoutDescription;
extern const MessageDefinition OwnHeadingWithoutExample;

MessageTable DictGroupMessages();

}  // namespace quorvane

#pragma once

#include "report/message.h"

namespace quorvane {

extern const MessageDefinition CodeGroupMissing;
extern const MessageDefinition CodeGroupWithoutData;
extern const MessageDefinition ContaminantCodeHeadingMissing;
extern const MessageDefinition ContaminantCodeListEmpty;
extern const MessageDefinition ContaminantCodeNotDefined;
extern const MessageDefinition ContaminantCodesUnused;

MessageTable ContaminantCodeMessages();

}  // namespace quorvane

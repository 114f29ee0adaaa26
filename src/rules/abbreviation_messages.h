#pragma once

#include "report/message.h"

namespace quorvane {

extern const MessageDefinition AbbrGroupMissing;
extern const MessageDefinition AbbrKeyFieldsMissing;
extern const MessageDefinition AbbrContaminantType;
extern const MessageDefinition AbbrHeadingValueMissing;
extern const MessageDefinition AbbrHeadingNotUsed;
extern const MessageDefinition AbbrCodeValueMissing;
extern const MessageDefinition AbbrCodeNotUsed;
extern const MessageDefinition AbbrNoUsableData;
extern const MessageDefinition AbbrCodeNotListed;
extern const MessageDefinition AbbrNoEntries;

MessageTable AbbreviationMessages();

}  // namespace quorvane

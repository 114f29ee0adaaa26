#pragma once

#include "report/message.h"

namespace quorvane {

extern const MessageDefinition TypeHeadingMissing;
extern const MessageDefinition TypeListEmpty;
extern const MessageDefinition DataTypeMissing;
extern const MessageDefinition DataTypeNotListed;
extern const MessageDefinition DateUnitMissing;
extern const MessageDefinition ElapsedTimeUnitMissing;
extern const MessageDefinition UnknownDataType;
extern const MessageDefinition ValueTypeMismatch;
extern const MessageDefinition IdRepeated;
extern const MessageDefinition RecordLinkGroupMissing;
extern const MessageDefinition RecordLinkRecordMissing;
extern const MessageDefinition TypesNotUsed;

MessageTable TypeMessages();

}  // namespace quorvane

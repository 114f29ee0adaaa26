#pragma once

#include "report/message.h"

namespace quorvane {

extern const MessageDefinition RequiredGroupsMissing;
extern const MessageDefinition RequiredFieldsMissing;
extern const MessageDefinition GroupWithoutHeadings;
extern const MessageDefinition GroupWithoutData;
extern const MessageDefinition ProjRecordCount;
extern const MessageDefinition ProjAgsHeadingMissing;
extern const MessageDefinition ProjAgsIsVersion4;
extern const MessageDefinition ProjAgsUnknownVersion;
extern const MessageDefinition TranRecordCount;
extern const MessageDefinition TranAgsHeadingMissing;
extern const MessageDefinition TranAgsUnknownVersion;

MessageTable RequiredContentMessages();

}  // namespace quorvane

#pragma once

#include "report/message.h"

namespace quorvane {

extern const MessageDefinition KeyHeadingsMissing;
extern const MessageDefinition LocationKeyNotFirst;
extern const MessageDefinition ProjIdNotFirst;
extern const MessageDefinition KeyRepeated;
extern const MessageDefinition ParentGroupMissing;
extern const MessageDefinition SecondaryParentGroupMissing;
extern const MessageDefinition ParentKeyCaseDiffers;
extern const MessageDefinition ParentKeyMissing;
extern const MessageDefinition SecondaryParentKeyMissing;

MessageTable KeyMessages();

}  // namespace quorvane

#pragma once

#include "report/message.h"

namespace quorvane {

extern const MessageDefinition GroupLineNotQuoted;
extern const MessageDefinition GroupLineForm;
extern const MessageDefinition GroupLineFieldCount;
extern const MessageDefinition GroupNameNotUpperCase;
extern const MessageDefinition GroupNameTooLong;
extern const MessageDefinition GroupNameCharacters;
extern const MessageDefinition GroupNotInDictionary;
extern const MessageDefinition GroupRepeated;
extern const MessageDefinition HeadingNotUpperCase;
extern const MessageDefinition HeadingTooLong;
extern const MessageDefinition HeadingWithoutUnderscore;
extern const MessageDefinition HeadingCharacters;
extern const MessageDefinition HeadingNotInDictionary;
extern const MessageDefinition HeadingPrefixUnknown;
extern const MessageDefinition HeadingsOutOfOrder;

MessageTable NameMessages();

}  // namespace quorvane

#pragma once

#include "report/message.h"

namespace quorvane {

/// What the splitting of lines into fields can find: quoting and field counts.
extern const MessageDefinition NullFieldWithSpaces;
extern const MessageDefinition MissingSurroundingQuotes;
extern const MessageDefinition InternalQuotes;
extern const MessageDefinition FieldCountDiffers;

MessageTable FieldMessages();

}  // namespace quorvane

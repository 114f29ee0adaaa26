#pragma once

#include "report/message.h"

namespace quorvane {

extern const MessageDefinition ByteOrderMarkIgnored;
extern const MessageDefinition WrongFileExtension;
extern const MessageDefinition NoFileExtension;
extern const MessageDefinition RowLabelProblems;
extern const MessageDefinition UnknownFileHeader;
extern const MessageDefinition LineOutOfOrder;
extern const MessageDefinition CharacterNotAllowed;
extern const MessageDefinition NoFurtherCharacterChecks;
extern const MessageDefinition LineTooLong;

MessageTable IntakeMessages();

}  // namespace quorvane

#pragma once

#include "report/message.h"

namespace quorvane {

extern const MessageDefinition UnitGroupMissing;
extern const MessageDefinition UnitHeadingMissing;
extern const MessageDefinition UnitListEmpty;
extern const MessageDefinition UnitNotListed;
extern const MessageDefinition NumericHeadingWithoutUnit;
extern const MessageDefinition UnitsUnused;

MessageTable UnitMessages();

}  // namespace quorvane

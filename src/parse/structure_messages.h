#pragma once

#include "report/message.h"

namespace quorvane {

/// What the reading of group, heading, unit, type and data lines can find.
extern const MessageDefinition UnknownGroupLineSyntax;
extern const MessageDefinition HeadingWithoutAsterisk;
extern const MessageDefinition HeadingRepeated;
extern const MessageDefinition TooManyHeadings;
extern const MessageDefinition UnitsLineMissing;
extern const MessageDefinition UnitsLineDoesNotApply;
extern const MessageDefinition UnitsLineStart;
extern const MessageDefinition UnitCountDiffers;
extern const MessageDefinition TypeCountDiffers;

/// What the look-ups into the group table can find.
extern const MessageDefinition RequiredHeadingMissing;
extern const MessageDefinition ReferenceValuesMissing;

MessageTable StructureMessages();

}  // namespace quorvane

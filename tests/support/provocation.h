#pragma once

#include <functional>
#include <string>
#include <vector>

#include "report/message.h"
#include "support/check_text.h"

namespace quorvane::test {

/// An input that makes the system raise one kind of finding, in one format. The catalogue's test
/// asks for one of each definition and format in which it exists, runs it, and wants the finding
/// to the letter.
struct Provocation {
  const MessageDefinition* definition;
  AgsFormat format;
  std::string finding;                 // label, line and text, as the grouped listing has it
  std::function<CheckResult()> check;  // runs the input
};

using Provocations = std::vector<Provocation>;

// One list per rule family, each in a file of its own.
Provocations IntakeProvocations();
Provocations ParseProvocations();
Provocations NameProvocations();
Provocations RequiredContentProvocations();
Provocations KeyProvocations();
Provocations DictGroupProvocations();
Provocations AbbreviationProvocations();
Provocations FileSetProvocations();
Provocations UnitProvocations();
Provocations ContaminantCodeProvocations();
Provocations TypeProvocations();

}  // namespace quorvane::test

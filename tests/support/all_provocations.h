#pragma once

#include "support/provocation.h"

namespace quorvane::test {

/// Those of all families.
inline Provocations AllProvocations() {
  Provocations all;
  for (const auto& family :
       {IntakeProvocations(), ParseProvocations(), NameProvocations(),
        RequiredContentProvocations(), KeyProvocations(), DictGroupProvocations(),
        AbbreviationProvocations(), FileSetProvocations(), UnitProvocations(),
        ContaminantCodeProvocations(), TypeProvocations()}) {
    all.insert(all.end(), family.begin(), family.end());
  }
  return all;
}

}  // namespace quorvane::test

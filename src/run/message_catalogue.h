#pragma once

#include <vector>

#include "report/message.h"

namespace quorvane {

/// Every kind of finding that the system knows, family after family in the order of the checks.
std::vector<const MessageDefinition*> MessageCatalogue();

}  // namespace quorvane

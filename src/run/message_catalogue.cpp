#include "run/message_catalogue.h"

#include "parse/field_messages.h"
#include "parse/structure_messages.h"
#include "rules/key_messages.h"
#include "rules/name_messages.h"
#include "rules/required_content_messages.h"
#include "run/intake_messages.h"

namespace quorvane {

std::vector<const MessageDefinition*> MessageCatalogue() {
  std::vector<const MessageDefinition*> catalogue;
  for (const MessageTable table : {IntakeMessages(), FieldMessages(), StructureMessages(),
                                   NameMessages(), RequiredContentMessages(), KeyMessages()}) {
    catalogue.insert(catalogue.end(), table.begin(), table.end());
  }
  return catalogue;
}

}  // namespace quorvane

#include "run/message_catalogue.h"

#include "parse/field_messages.h"
#include "parse/structure_messages.h"
#include "rules/abbreviation_messages.h"
#include "rules/contaminant_code_messages.h"
#include "rules/dict_group_messages.h"
#include "rules/file_set_messages.h"
#include "rules/key_messages.h"
#include "rules/name_messages.h"
#include "rules/required_content_messages.h"
#include "rules/type_messages.h"
#include "rules/unit_messages.h"
#include "run/intake_messages.h"

namespace quorvane {

std::vector<const MessageDefinition*> MessageCatalogue() {
  std::vector<const MessageDefinition*> catalogue;
  for (const MessageTable table :
       {IntakeMessages(), FieldMessages(), StructureMessages(), NameMessages(),
        RequiredContentMessages(), KeyMessages(), DictGroupMessages(), AbbreviationMessages(),
        FileSetMessages(), UnitMessages(), ContaminantCodeMessages(), TypeMessages()}) {
    catalogue.insert(catalogue.end(), table.begin(), table.end());
  }
  return catalogue;
}

}  // namespace quorvane

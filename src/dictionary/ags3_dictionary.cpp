#include "dictionary/ags3_dictionary.h"

#include "dictionary/ags3_dictionary_table.h"

namespace quorvane {
namespace {

void SetAgs3Lists(DictionaryLists& lists) {
  lists = {};
  lists.requiredGroups = {"PROJ"};
  lists.pickListHeadings = {"BKFL_LEG",  "CNMT_TTYP", "DISC_TERM", "FILE_DOCT", "GEOL_LEG",
                            "GRAD_TYPE", "HOLE_TYPE", "INST_TYPE", "ISPT_TYPE", "MONP_TYPE",
                            "PREF_TYPE", "PROF_TYPE", "PRTD_TYPE", "ROCK_PLTF", "SAMP_TYPE",
                            "STCN_TYPE", "TRIG_TYPE"};
  lists.unitFields = {{"DICT", "DICT_UNIT"}, {"CNMT", "CNMT_UNIT"}, {"?ICCT", "?ICCT_UNIT"}};
  lists.referenceGroups = {"ABBR", "CODE", "DICT", "UNIT"};
  lists.locationGroup = "HOLE";
  lists.locationKey = "HOLE_ID";
  lists.relatedGroups = {"CLSS,CBRG,CMPG,CNMT,CONG,MCVG,PTST,RELD,ROCK,SHBG,SUCT,TNPC,TRIG",
                         "?GRAG,GRAD"};
  // ROCK is in the first list only.
  lists.secondRelatedGroups = {"CLSS,CBRG,CMPG,CNMT,CONG,MCVG,PTST,RELD,SHBG,SUCT,TNPC,TRIG"};
}

}  // namespace

std::string BuildAgs3Dictionary(std::string_view separator, DictionaryLists& lists) {
  SetAgs3Lists(lists);
  std::string stream;
  for (const Ags3DictionaryRow& row : Ags3DictionaryRows()) {
    for (const std::string_view item : {row.Group, row.KeyItem, row.Headings, row.NumericFlags}) {
      stream.append(separator).append(item);
    }
  }
  return stream.substr(separator.size());
}

}  // namespace quorvane

#include <array>

#include "generate_lists.h"

namespace quorvane::generate {

namespace {

// Only plain ASCII, no tabs and, but for kQuotedRemark, no double quotes: AGS 3 allows nothing
// else.

constexpr std::array kCrew{Code{"JB"}, Code{"TW"}, Code{"AK/PS"}, Code{"M Hill"}, Code{"DR"}};

constexpr std::array kContractor{Code{"Northmoor Drilling"}, Code{"Ashby Ground Engineering"},
                                 Code{"Tarn Geotechnical"}};

constexpr std::array kLaboratory{Code{"Tarn Geotechnical"}, Code{"Beck Soils"}, Code{"Fell Labs"}};

constexpr std::array kMethod{Code{"BS1377-2:3.2"}, Code{"BS1377-2:9.2"}, Code{"BS1377-7:8"},
                             Code{"BS1377-4:3.3"}, Code{"In house 14"}};

constexpr std::array kAccreditation{Code{"A"}, Code{"N"}};

constexpr std::array kSampleRemark{Code{"No recovery at first attempt"},
                                   Code{"Slow seepage while sampling"},
                                   Code{"Duplicate of the sample above"},
                                   Code{"Sample disturbed"},
                                   Code{"Odour of solvent"},
                                   Code{"Tube damaged, top 50mm discarded"}};

constexpr std::array kQuotedRemark{Code{"Tub is marked \"\"bulk 2\"\" on the lid"},
                                   Code{"Recovered with a 4\"\" tube"},
                                   Code{"Described on the log as \"\"made\"\" ground"}};

constexpr std::array kFieldRemark{
    Code{"Blow count high on cobble"},        Code{"Water added to assist boring"},
    Code{"Position moved to clear services"}, Code{"Hole stable and dry"},
    Code{"Chiselling required, see log"},     Code{"Terminated at scheduled depth"}};

constexpr std::array kLabRemark{
    Code{"Insufficient material for a repeat"}, Code{"Specimen contained a stone"},
    Code{"Deviating sample, see report"}, Code{"Specimen prepared from the wettest part"}};

constexpr std::array kTool{Code{"SH"}, Code{"CPS"}, Code{"T6-116"}, Code{"T2-101"}, Code{"1.5T"}};

constexpr std::array kStratum{Code{"MADE"}, Code{"ALLUVIUM"}, Code{"TERRACE"},
                              Code{"TILL"}, Code{"MUDSTONE"}, Code{"CLAY"}};

constexpr std::array kStrength{Code{"Firm"},       Code{"Stiff"},         Code{"Soft"},
                               Code{"Very stiff"}, Code{"Medium dense"},  Code{"Dense"},
                               Code{"Loose"},      Code{"Firm to stiff"}, Code{"Very soft"}};

constexpr std::array kColour{Code{"brown"},          Code{"grey"},
                             Code{"reddish brown"},  Code{"dark grey mottled orange"},
                             Code{"light brown"},    Code{"greenish grey"},
                             Code{"yellowish brown"}};

constexpr std::array kSecondary{Code{"slightly sandy"}, Code{"slightly sandy slightly gravelly"},
                                Code{"gravelly"},       Code{"silty"},
                                Code{"very sandy"},     Code{"clayey"},
                                Code{"fissured"},       Code{"thinly laminated"}};

constexpr std::array kPrincipal{
    Code{"CLAY"},   Code{"silty CLAY"}, Code{"SAND"}, Code{"SAND and GRAVEL"},
    Code{"GRAVEL"}, Code{"SILT"},       Code{"PEAT"}, Code{"MUDSTONE"}};

constexpr std::array kDetail{
    Code{"Gravel is subangular to subrounded, fine to coarse, of sandstone and mudstone."},
    Code{"Occasional rootlets (up to 5mm) in the upper part."},
    Code{"Sand is fine to coarse."},
    Code{"With rare pockets of black organic silt, less than 20mm across."},
    Code{"Cobbles are rounded of quartzite; low cobble content."},
    Code{"Fissures are extremely closely spaced, planar, smooth and gleyed along their surfaces."},
    Code{"Slight organic odour."},
    Code{"Becoming stiff with depth; locally iron stained."}};

}  // namespace

std::span<const Code> TextsOf(ListId list) {
  switch (list) {
    case ListId::Crew:
      return kCrew;
    case ListId::Contractor:
      return kContractor;
    case ListId::Laboratory:
      return kLaboratory;
    case ListId::Method:
      return kMethod;
    case ListId::Accreditation:
      return kAccreditation;
    case ListId::SampleRemark:
      return kSampleRemark;
    case ListId::QuotedRemark:
      return kQuotedRemark;
    case ListId::FieldRemark:
      return kFieldRemark;
    case ListId::LabRemark:
      return kLabRemark;
    case ListId::Tool:
      return kTool;
    case ListId::Stratum:
      return kStratum;
    case ListId::Strength:
      return kStrength;
    case ListId::Colour:
      return kColour;
    case ListId::Secondary:
      return kSecondary;
    case ListId::Principal:
      return kPrincipal;
    case ListId::Detail:
      return kDetail;
    default:
      return {};
  }
}

}  // namespace quorvane::generate

#include <array>

#include "generate_catalogue.h"

namespace quorvane::generate {

namespace {

constexpr std::array kSpecimen{
    From(Source::LocationId, "HOLE_ID", "ID"),
    From(Source::SampleTop, "SAMP_TOP", "2DP", "m"),
    From(Source::SampleReference, "SAMP_REF", "X"),
    From(Source::SampleType, "SAMP_TYPE", "PA"),
    From(Source::SpecimenReference, "SPEC_REF", "X"),
    From(Source::SpecimenDepth, "SPEC_DPTH", "2DP", "m"),
};

constexpr auto kClss = Join(kSpecimen, std::array{
                                           Number("CLSS_NMC", "0DP", "%", 8, 48),
                                           Number("CLSS_LL", "0DP", "%", 24, 88, 60),
                                           Number("CLSS_PL", "0DP", "%", 12, 32, 60),
                                           Number("CLSS_BDEN", "2DP", "Mg/m3", 170, 220, 30),
                                           Number("CLSS_DDEN", "2DP", "Mg/m3", 130, 190, 30),
                                           Number("CLSS_PD", "2DP", "Mg/m3", 262, 272, 10),
                                           Number("CLSS_425", "0DP", "%", 60, 100, 60),
                                           Words("CLSS_PREP", ListId::LabRemark, 10),
                                           Blank("CLSS_SLIM", "0DP", "%"),
                                           Blank("CLSS_LS", "0DP", "%"),
                                           Number("CLSS_HVP", "0DP", "kN/m2", 20, 140, 20),
                                           Number("CLSS_HVR", "0DP", "kN/m2", 5, 60, 10),
                                           Blank("CLSS_PPEN", "0DP", "kN/m2"),
                                           Blank("CLSS_VNPK", "0DP", "kN/m2"),
                                           Blank("CLSS_VNRM", "0DP", "kN/m2"),
                                       });

constexpr auto kGrad = Join(kSpecimen, std::array{
                                           From(Source::ItemCode, "GRAD_SIZE", "3SF", "mm"),
                                           Number("GRAD_PERP", "0DP", "%", 0, 100),
                                           Coded("GRAD_TYPE", ListId::GradingMethod),
                                       });

constexpr auto kCmpg = Join(kSpecimen, std::array{
                                           Words("CMPG_TYPE", ListId::CompactionTest),
                                           Words("CMPG_MOLD", ListId::CompactionMould),
                                           Number("CMPG_375", "0DP", "%", 0, 10, 80),
                                           Number("CMPG_200", "0DP", "%", 0, 20, 80),
                                           Number("CMPG_PDEN", "2DP", "Mg/m3", 262, 270),
                                           Number("CMPG_MAXD", "2DP", "Mg/m3", 170, 205),
                                           Number("CMPG_MCOP", "0DP", "%", 8, 20),
                                           Words("CMPG_REM", ListId::Method),
                                           Blank("FILE_FSET", "X"),
                                       });

constexpr auto kCmpt = Join(kSpecimen, std::array{
                                           From(Source::RowNumber, "CMPT_TESN", "X"),
                                           Number("CMPT_MC", "0DP", "%", 6, 24),
                                           Number("CMPT_DDEN", "2DP", "Mg/m3", 160, 205),
                                       });

constexpr auto kCong = Join(kSpecimen, std::array{
                                           Words("CONG_TYPE", ListId::ConsolidationTest),
                                           Words("CONG_COND", ListId::SpecimenCondition),
                                           Words("CONG_REM", ListId::Method, 50),
                                           Blank("CONG_INCM", "2DP", "m2/MN"),
                                           Blank("CONG_INCD", "2DP", "m2/yr"),
                                           Number("CONG_DIA", "2DP", "mm", 7500, 7520),
                                           Number("CONG_HIGT", "2DP", "mm", 1880, 1950),
                                           Number("CONG_MCI", "0DP", "%", 14, 40),
                                           Number("CONG_MCF", "0DP", "%", 12, 38),
                                           Number("CONG_BDEN", "2DP", "Mg/m3", 180, 215),
                                           Number("CONG_DDEN", "2DP", "Mg/m3", 140, 185),
                                           Number("CONG_PDEN", "2DP", "Mg/m3", 262, 272),
                                           Number("CONG_SATR", "0DP", "%", 85, 100, 60),
                                           Number("CONG_SPRS", "0DP", "kN/m2", 20, 99, 30),
                                           Blank("CONG_SATH", "1DP", "%"),
                                           Blank("FILE_FSET", "X"),
                                       });

constexpr auto kCons = Join(kSpecimen, std::array{
                                           From(Source::RowNumber, "CONS_INCN", "X"),
                                           Number("CONS_IVR", "3DP", "", 350, 1200),
                                           From(Source::ItemCode, "CONS_INCF", "0DP", "kN/m2"),
                                           Number("CONS_INCE", "3DP", "", 350, 1200),
                                           Number("CONS_INMV", "2DP", "m2/MN", 2, 99, 90),
                                           Number("CONS_INCV", "1DP", "m2/yr", 2, 99, 90),
                                           Blank("CONS_INSC", "X"),
                                       });

constexpr auto kTrig = Join(kSpecimen, std::array{
                                           Coded("TRIG_TYPE", ListId::TriaxialTest),
                                           Words("TRIG_COND", ListId::SpecimenCondition),
                                           Words("TRIG_REM", ListId::Method, 40),
                                           Number("TRIG_CU", "0DP", "kN/m2", 20, 180),
                                           Number("TRIG_COH", "0DP", "kN/m2", 20, 180, 30),
                                           Number("TRIG_PHI", "0DP", "deg", 0, 35, 30),
                                           Blank("FILE_FSET", "X"),
                                       });

constexpr auto kTrix = Join(kSpecimen, std::array{
                                           From(Source::RowNumber, "TRIX_TESN", "X"),
                                           Number("TRIX_SDIA", "0DP", "mm", 38, 103),
                                           Number("TRIX_MC", "0DP", "%", 12, 36),
                                           Number("TRIX_CELL", "0DP", "kN/m2", 50, 400),
                                           Number("TRIX_DEVF", "0DP", "kN/m2", 40, 360),
                                           Number("TRIX_SLEN", "0DP", "mm", 76, 206),
                                           Number("TRIX_BDEN", "2DP", "Mg/m3", 180, 218),
                                           Number("TRIX_DDEN", "2DP", "Mg/m3", 140, 190, 90),
                                           Blank("TRIX_PWPF", "0DP", "kN/m2"),
                                           Blank("TRIX_PWPI", "0DP", "kN/m2"),
                                           Number("TRIX_STRN", "1DP", "%", 20, 200),
                                           Words("TRIX_MODE", ListId::Tool, 60),
                                       });

constexpr auto kCnmt = Join(kSpecimen, std::array{
                                           From(Source::ItemCode, "CNMT_TYPE", "X"),
                                           Coded("CNMT_TTYP", ListId::Matrix),
                                           Decimal("CNMT_RESL", "U", "", 1, 1, 4000),
                                           From(Source::ItemUnit, "CNMT_UNIT", "PU"),
                                           Blank("CNMT_CAS", "X"),
                                           Words("CNMT_METH", ListId::Method, 40),
                                           Blank("CNMT_PREP", "X"),
                                           Blank("CNMT_REM", "X"),
                                           Decimal("CNMT_LIM", "U", "", 2, 1, 99, 50),
                                           From(Source::ItemName, "CNMT_NAME", "X", "", 60),
                                           Words("CNMT_LAB", ListId::Laboratory, 50),
                                           Words("CNMT_CRED", ListId::Accreditation, 50),
                                           Blank("FILE_FSET", "X"),
                                       });

constexpr Set kSoil = SetOf(SampleUse::Disturbed, SampleUse::Undisturbed);
constexpr Set kTube = SetOf(SampleUse::Undisturbed);

constexpr Group kCompactions =
    TestOf("CMPG", kCmpg, kSpecimen.size(), SetOf(SampleUse::Disturbed), 6);
constexpr Group kConsolidations = TestOf("CONG", kCong, kSpecimen.size(), kTube, 40);
constexpr Group kTriaxials = TestOf("TRIG", kTrig, kSpecimen.size(), kTube, 80);

constexpr std::array kLabGroups{
    TestOf("CLSS", kClss, kSpecimen.size(), kSoil, 85),
    SeriesOf(TestOf("GRAD", kGrad, kSpecimen.size() + 1, kSoil, 26), 14, 24, ListId::SieveSize),
    WithChildren(kCompactions),
    ResultsOf(kCompactions, "CMPT", kCmpt, 5, 6),
    WithChildren(kConsolidations),
    SeriesOf(ResultsOf(kConsolidations, "CONS", kCons), 6, 10, ListId::LoadIncrement),
    WithChildren(kTriaxials),
    ResultsOf(kTriaxials, "TRIX", kTrix, 1, 3),
    SeriesOf(TestOf("CNMT", kCnmt, kSpecimen.size() + 2, SetOf(SampleUse::Environmental), 40), 18,
             45, ListId::Determinand),
};

}  // namespace

std::span<const Group> Ags3LabGroups() {
  return kLabGroups;
}

}  // namespace quorvane::generate

#include <array>

#include "generate_catalogue.h"

namespace quorvane::generate {

namespace {

constexpr std::array kSpecimen{
    From(Source::LocationId, "LOCA_ID", "ID"),
    From(Source::SampleTop, "SAMP_TOP", "2DP", "m"),
    From(Source::SampleReference, "SAMP_REF", "X"),
    From(Source::SampleType, "SAMP_TYPE", "PA"),
    From(Source::SampleId, "SAMP_ID", "ID"),
    From(Source::SpecimenReference, "SPEC_REF", "X"),
    From(Source::SpecimenDepth, "SPEC_DPTH", "2DP", "m"),
};

constexpr auto kLnmc = Join(kSpecimen, std::array{
                                           From(Source::Description, "SPEC_DESC", "X", "", 10),
                                           Blank("SPEC_PREP", "X"),
                                           Decimal("LNMC_MC", "X", "%", 0, 8, 48),
                                           Number("LNMC_TEMP", "0DP", "degC", 105, 105, 70),
                                           Blank("LNMC_STAB", "2SF", "%"),
                                           Blank("LNMC_STYP", "X"),
                                           From(Source::YesNo, "LNMC_ISNT", "YN", "", 25),
                                           Blank("LNMC_COMM", "X"),
                                           Words("LNMC_REM", ListId::LabRemark, 5),
                                           Words("LNMC_METH", ListId::Method, 60),
                                           Words("LNMC_LAB", ListId::Laboratory, 40),
                                           Words("LNMC_CRED", ListId::Accreditation, 40),
                                           Blank("TEST_STAT", "X"),
                                           Blank("FILE_FSET", "X"),
                                       });

constexpr auto kLlpl = Join(kSpecimen, std::array{
                                           From(Source::Description, "SPEC_DESC", "X", "", 10),
                                           Blank("SPEC_PREP", "X"),
                                           Decimal("LLPL_LL", "2SF", "%", 0, 24, 88),
                                           Decimal("LLPL_PL", "XN", "%", 0, 12, 32),
                                           Decimal("LLPL_PI", "2SF", "", 0, 10, 56),
                                           Decimal("LLPL_425", "2SF", "%", 0, 60, 99, 90),
                                           Words("LLPL_PREP", ListId::LabRemark, 10),
                                           Blank("LLPL_STAB", "2SF", "%"),
                                           Blank("LLPL_STYP", "X"),
                                           Blank("LLPL_REM", "X"),
                                           Words("LLPL_METH", ListId::Method, 60),
                                           Words("LLPL_LAB", ListId::Laboratory, 40),
                                           Words("LLPL_CRED", ListId::Accreditation, 40),
                                           Blank("TEST_STAT", "X"),
                                           Blank("FILE_FSET", "X"),
                                       });

constexpr auto kLden = Join(kSpecimen, std::array{
                                           Blank("SPEC_DESC", "X"),
                                           Blank("SPEC_PREP", "X"),
                                           Coded("LDEN_TYPE", ListId::DensityTest),
                                           Coded("LDEN_COND", ListId::SpecimenCondition, 60),
                                           Coded("LDEN_SMTY", ListId::DensitySpecimen),
                                           Decimal("LDEN_MC", "X", "%", 0, 10, 40, 80),
                                           Number("LDEN_BDEN", "2DP", "Mg/m3", 170, 220),
                                           Number("LDEN_DDEN", "2DP", "Mg/m3", 130, 190, 90),
                                           Blank("LDEN_REM", "X"),
                                           Words("LDEN_METH", ListId::Method, 40),
                                           Words("LDEN_LAB", ListId::Laboratory, 30),
                                           Blank("LDEN_CRED", "X"),
                                           Blank("TEST_STAT", "X"),
                                           Blank("FILE_FSET", "X"),
                                       });

constexpr auto kGrag = Join(kSpecimen, std::array{
                                           From(Source::Description, "SPEC_DESC", "X", "", 10),
                                           Blank("SPEC_PREP", "X"),
                                           Decimal("GRAG_UC", "1SF", "", 0, 2, 9, 40),
                                           Number("GRAG_VCRE", "1DP", "%", 0, 100, 60),
                                           Number("GRAG_GRAV", "1DP", "%", 0, 600),
                                           Number("GRAG_SAND", "1DP", "%", 50, 500),
                                           Number("GRAG_SILT", "1DP", "%", 20, 300, 70),
                                           Number("GRAG_CLAY", "1DP", "%", 10, 300, 60),
                                           Number("GRAG_FINE", "1DP", "%", 20, 500),
                                           Blank("GRAG_REM", "X"),
                                           Words("GRAG_METH", ListId::Method, 40),
                                           Words("GRAG_LAB", ListId::Laboratory, 30),
                                           Blank("GRAG_CRED", "X"),
                                           Blank("TEST_STAT", "X"),
                                           Blank("FILE_FSET", "X"),
                                       });

constexpr auto kGrat = Join(kSpecimen, std::array{
                                           From(Source::ItemCode, "GRAT_SIZE", "3SF", "mm"),
                                           Number("GRAT_PERP", "0DP", "%", 0, 100),
                                           Coded("GRAT_TYPE", ListId::GradingMethod),
                                           Blank("GRAT_REM", "X"),
                                           Blank("FILE_FSET", "X"),
                                       });

constexpr auto kCong = Join(kSpecimen, std::array{
                                           From(Source::Description, "SPEC_DESC", "X", "", 30),
                                           Blank("SPEC_PREP", "X"),
                                           Coded("CONG_TYPE", ListId::ConsolidationTest),
                                           Coded("CONG_COND", ListId::SpecimenCondition),
                                           Number("CONG_SDIA", "2DP", "mm", 7500, 7520),
                                           Number("CONG_HIGT", "2DP", "mm", 1880, 1950),
                                           Decimal("CONG_MCI", "X", "%", 0, 14, 40),
                                           Decimal("CONG_MCF", "X", "%", 0, 12, 38),
                                           Number("CONG_BDEN", "2DP", "Mg/m3", 180, 215),
                                           Number("CONG_DDEN", "2DP", "Mg/m3", 140, 185),
                                           Decimal("CONG_PDEN", "XN", "Mg/m3", 2, 262, 272, 90),
                                           Number("CONG_SATR", "0DP", "%", 85, 100, 60),
                                           Decimal("CONG_SPRS", "2SF", "kPa", 0, 20, 99, 30),
                                           Blank("CONG_SATH", "1DP", "%"),
                                           Number("CONG_IVR", "3DP", "", 400, 1200, 90),
                                           Blank("CONG_REM", "X"),
                                           Words("CONG_METH", ListId::Method),
                                           Words("CONG_LAB", ListId::Laboratory),
                                           Blank("CONG_CRED", "X"),
                                           Blank("TEST_STAT", "X"),
                                           Blank("FILE_FSET", "X"),
                                       });

constexpr auto kCons = Join(kSpecimen, std::array{
                                           From(Source::RowNumber, "CONS_INCN", "X"),
                                           Number("CONS_IVR", "3DP", "", 350, 1200),
                                           From(Source::ItemCode, "CONS_INCF", "0DP", "kPa"),
                                           Number("CONS_INCE", "2DP", "", 20, 90, 60),
                                           Decimal("CONS_INMV", "2SF", "m2/MN", 2, 10, 99, 90),
                                           Decimal("CONS_INSC", "2SF", "", 2, 10, 99, 20),
                                           Decimal("CONS_CVRT", "2SF", "m2/yr", 1, 10, 99, 60),
                                           Decimal("CONS_CVLG", "2SF", "m2/yr", 1, 10, 99, 60),
                                           Number("CONS_TEMP", "1DP", "degC", 180, 220, 50),
                                           Blank("CONS_REM", "X"),
                                           Blank("FILE_FSET", "X"),
                                       });

constexpr auto kTrig = Join(kSpecimen, std::array{
                                           From(Source::Description, "SPEC_DESC", "X", "", 30),
                                           Blank("SPEC_PREP", "X"),
                                           Coded("TRIG_TYPE", ListId::TriaxialTest),
                                           Coded("TRIG_COND", ListId::SpecimenCondition),
                                           Blank("TRIG_REM", "X"),
                                           Words("TRIG_METH", ListId::Method),
                                           Words("TRIG_LAB", ListId::Laboratory, 50),
                                           Blank("TRIG_CRED", "X"),
                                           Blank("TEST_STAT", "X"),
                                           Blank("FILE_FSET", "X"),
                                       });

constexpr auto kTrit = Join(kSpecimen, std::array{
                                           From(Source::RowNumber, "TRIT_TESN", "X"),
                                           Number("TRIT_SDIA", "2DP", "mm", 3800, 10300),
                                           Number("TRIT_SLEN", "2DP", "mm", 7600, 20600),
                                           Decimal("TRIT_IMC", "X", "%", 0, 12, 36),
                                           Blank("TRIT_FMC", "X", "%"),
                                           Number("TRIT_CELL", "0DP", "kPa", 50, 400),
                                           Number("TRIT_DEVF", "0DP", "kPa", 40, 360),
                                           Number("TRIT_BDEN", "2DP", "Mg/m3", 180, 218),
                                           Number("TRIT_DDEN", "2DP", "Mg/m3", 140, 190, 90),
                                           Decimal("TRIT_STRN", "2SF", "%", 1, 20, 99),
                                           Number("TRIT_CU", "0DP", "kPa", 20, 180),
                                           Words("TRIT_MODE", ListId::Tool, 40),
                                           Blank("TRIT_REM", "X"),
                                           Blank("FILE_FSET", "X"),
                                       });

constexpr auto kEres =
    Join(kSpecimen, std::array{
                        From(Source::ItemCode, "ERES_CODE", "PA"),
                        Words("ERES_METH", ListId::Method),
                        Coded("ERES_MATX", ListId::Matrix),
                        Coded("ERES_RTYP", ListId::ResultType),
                        Blank("ERES_TESN", "X"),
                        From(Source::ItemName, "ERES_NAME", "X"),
                        Blank("ERES_TNAM", "X"),
                        Decimal("ERES_RVAL", "U", "", 1, 1, 4000, 80),
                        From(Source::ItemUnit, "ERES_RUNI", "PU"),
                        Decimal("ERES_RTXT", "X", "", 1, 1, 4000, 60),
                        Blank("ERES_RTCD", "PA"),
                        From(Source::YesNo, "ERES_RRES", "YN", "", 50),
                        From(Source::YesNo, "ERES_DETF", "YN", "", 50),
                        From(Source::YesNo, "ERES_ORG", "YN", "", 50),
                        Blank("ERES_IQLF", "X"),
                        Blank("ERES_LQLF", "X"),
                        Decimal("ERES_RDLM", "U", "", 2, 1, 99, 70),
                        Blank("ERES_MDLM", "U"),
                        Blank("ERES_QLM", "U"),
                        From(Source::ItemUnit, "ERES_DUNI", "PU", "", 40),
                        Blank("ERES_TICP", "0DP", "%"),
                        Blank("ERES_TICT", "0DP", "s"),
                        From(Source::Moment, "ERES_RDAT", "DT", "yyyy-mm-dd", 30),
                        Blank("ERES_SGRP", "X"),
                        Blank("SPEC_PREP", "X"),
                        Blank("SPEC_DESC", "X"),
                        From(Source::Moment, "ERES_DTIM", "DT", "yyyy-mm-ddThh:mm", 15),
                        Blank("ERES_TEST", "X"),
                        Blank("ERES_TORD", "X"),
                        Coded("ERES_LOCN", ListId::ResultPlace, 40),
                        Coded("ERES_BAS", ListId::ResultBasis, 50),
                        Blank("ERES_DIL", "0DP"),
                        Blank("ERES_LMTH", "X"),
                        Blank("ERES_LDTM", "DT", "yyyy-mm-ddThh:mm"),
                        Blank("ERES_IREF", "X"),
                        Blank("ERES_SIZE", "0DP", "mm"),
                        Blank("ERES_PERP", "1DP", "%"),
                        Blank("ERES_REM", "X"),
                        Words("ERES_LAB", ListId::Laboratory, 25),
                        Words("ERES_CRED", ListId::Accreditation, 30),
                        Blank("TEST_STAT", "X"),
                        Blank("FILE_FSET", "X"),
                    });

constexpr Set kSoil = SetOf(SampleUse::Disturbed, SampleUse::Undisturbed);
constexpr Set kTube = SetOf(SampleUse::Undisturbed);

constexpr Group kGradings = TestOf("GRAG", kGrag, kSpecimen.size(), kSoil, 26);
constexpr Group kConsolidations = TestOf("CONG", kCong, kSpecimen.size(), kTube, 40);
constexpr Group kTriaxials = TestOf("TRIG", kTrig, kSpecimen.size(), kTube, 60);

constexpr std::array kLabGroups{
    TestOf("LNMC", kLnmc, kSpecimen.size(), kSoil, 75),
    TestOf("LLPL", kLlpl, kSpecimen.size(), kSoil, 45),
    TestOf("LDEN", kLden, kSpecimen.size(), kTube, 90),
    WithChildren(kGradings),
    SeriesOf(ResultsOf(kGradings, "GRAT", kGrat), 14, 24, ListId::SieveSize),
    WithChildren(kConsolidations),
    SeriesOf(ResultsOf(kConsolidations, "CONS", kCons), 6, 10, ListId::LoadIncrement),
    WithChildren(kTriaxials),
    ResultsOf(kTriaxials, "TRIT", kTrit, 1, 3),
    SeriesOf(TestOf("ERES", kEres, kSpecimen.size() + 4, SetOf(SampleUse::Environmental), 28), 18,
             45, ListId::Determinand),
};

}  // namespace

std::span<const Group> Ags4LabGroups() {
  return kLabGroups;
}

}  // namespace quorvane::generate

#include <array>

#include "generate_catalogue.h"

namespace quorvane::generate {

namespace {

constexpr std::array kProj{
    Fixed("PROJ_ID", "Q-2041"),
    Fixed("PROJ_NAME", "Eastern relief road"),
    Fixed("PROJ_LOC", "Ashby to Northmoor"),
    Fixed("PROJ_CLNT", "County highways"),
    Fixed("PROJ_CONT", "Northmoor Drilling"),
    Fixed("PROJ_ENG", "Ashby Ground Engineering"),
    Blank("PROJ_MEMO", "X"),
    Fixed("PROJ_DATE", "18/03/2022", "DT", "dd/mm/yyyy"),
    Fixed("PROJ_AGS", "3.1"),
    Blank("FILE_FSET", "X"),
};

constexpr std::array kFile{
    From(Source::FileSet, "FILE_FSET", "X"),
    From(Source::FileName, "FILE_NAME", "X"),
    Fixed("FILE_DESC", "Logs and photographs"),
    Words("FILE_TYPE", ListId::FileType),
    Blank("FILE_PROG", "X"),
    From(Source::Moment, "FILE_DATE", "DT", "dd/mm/yyyy"),
};

constexpr std::array kHole{
    From(Source::LocationId, "HOLE_ID", "ID"),
    From(Source::RigCode, "HOLE_TYPE", "PA"),
    Number("HOLE_NATE", "2DP", "m", 43200000, 43600000),
    Number("HOLE_NATN", "2DP", "m", 28000000, 28600000),
    Number("HOLE_GL", "2DP", "m", 1000, 9000),
    From(Source::Depth, "HOLE_FDEP", "2DP", "m"),
    From(Source::Moment, "HOLE_STAR", "DT", "dd/mm/yyyy"),
    Words("HOLE_LOG", ListId::Crew),
    Words("HOLE_REM", ListId::FieldRemark, 40),
    Blank("HOLE_ETRV", "2DP", "m"),
    Blank("HOLE_NTRV", "2DP", "m"),
    Blank("HOLE_LTRV", "2DP", "m"),
    Blank("HOLE_LETT", "X"),
    Number("HOLE_LOCX", "2DP", "m", 100000, 400000, 60),
    Number("HOLE_LOCY", "2DP", "m", 100000, 600000, 60),
    Blank("HOLE_LOCZ", "2DP", "m"),
    From(Source::Moment, "HOLE_ENDD", "DT", "dd/mm/yyyy"),
    From(Source::Moment, "HOLE_BACD", "DT", "dd/mm/yyyy", 40),
    Words("HOLE_CREW", ListId::Crew, 70),
    Number("HOLE_ORNT", "0DP", "deg", 0, 359, 10),
    Number("HOLE_INCL", "0DP", "deg", 45, 90, 10),
    Words("HOLE_EXC", ListId::Tool, 60),
    Blank("HOLE_SHOR", "X"),
    Words("HOLE_STAB", ListId::FieldRemark, 20),
    Number("HOLE_DIML", "2DP", "m", 100, 300, 20),
    Number("HOLE_DIMW", "2DP", "m", 50, 120, 20),
    Blank("HOLE_LOCM", "X"),
    Blank("HOLE_LOCA", "X"),
    Blank("HOLE_CLST", "X"),
    From(Source::FileSet, "FILE_FSET", "X"),
};

constexpr std::array kGeol{
    From(Source::LocationId, "HOLE_ID", "ID"),
    From(Source::SplitTop, "GEOL_TOP", "2DP", "m"),
    From(Source::SplitBase, "GEOL_BASE", "2DP", "m"),
    From(Source::Description, "GEOL_DESC", "X"),
    Coded("GEOL_LEG", ListId::Legend),
    Words("GEOL_GEOL", ListId::Formation, 80),
    Blank("GEOL_GEO2", "X"),
    Words("GEOL_STAT", ListId::Stratum, 30),
    Blank("FILE_FSET", "X"),
};

constexpr std::array kCdia{
    From(Source::LocationId, "HOLE_ID", "ID"),
    Step("CDIA_CDEP", "2DP", "m", 150, 400),
    Number("CDIA_HOLE", "0DP", "mm", 150, 250),
    Blank("CDIA_REM", "X"),
};

constexpr std::array kCore{
    From(Source::LocationId, "HOLE_ID", "ID"),
    From(Source::SplitTop, "CORE_TOP", "2DP", "m"),
    From(Source::SplitBase, "CORE_BOT", "2DP", "m"),
    Number("CORE_PREC", "0DP", "%", 60, 100),
    Number("CORE_SREC", "0DP", "%", 30, 100, 95),
    Number("CORE_RQD", "0DP", "%", 0, 95, 90),
    Words("CORE_REM", ListId::FieldRemark, 5),
    Number("CORE_DIAM", "0DP", "mm", 92, 101),
    Blank("FILE_FSET", "X"),
};

constexpr std::array kDetl{
    From(Source::LocationId, "HOLE_ID", "ID"),
    From(Source::SplitTop, "DETL_TOP", "2DP", "m"),
    From(Source::SplitBase, "DETL_BASE", "2DP", "m"),
    Words("DETL_DESC", ListId::Detail),
};

constexpr std::array kIspt{
    From(Source::LocationId, "HOLE_ID", "ID"),
    Step("ISPT_TOP", "2DP", "m", 100, 100),
    Number("ISPT_SEAT", "0DP", "", 1, 25),
    Number("ISPT_MAIN", "0DP", "", 4, 50),
    Number("ISPT_NPEN", "0DP", "mm", 300, 300, 90),
    Number("ISPT_NVAL", "0DP", "", 4, 50, 95),
    Words("ISPT_REP", ListId::Tool, 50),
    Number("ISPT_CAS", "2DP", "m", 0, 900, 60),
    Number("ISPT_WAT", "2DP", "m", 50, 900, 40),
    Coded("ISPT_TYPE", ListId::SptType),
    Words("ISPT_REM", ListId::FieldRemark, 3),
    Number("ISPT_INC1", "0DP", "", 0, 15, 90),
    Number("ISPT_INC2", "0DP", "", 0, 15, 90),
    Number("ISPT_INC3", "0DP", "", 0, 15, 90),
    Number("ISPT_INC4", "0DP", "", 0, 15, 90),
    Number("ISPT_INC5", "0DP", "", 0, 15, 90),
    Number("ISPT_INC6", "0DP", "", 0, 15, 90),
    Number("ISPT_PEN1", "0DP", "mm", 75, 75, 85),
    Number("ISPT_PEN2", "0DP", "mm", 75, 75, 85),
    Number("ISPT_PEN3", "0DP", "mm", 75, 75, 85),
    Number("ISPT_PEN4", "0DP", "mm", 75, 75, 85),
    Number("ISPT_PEN5", "0DP", "mm", 75, 75, 85),
    Number("ISPT_PEN6", "0DP", "mm", 75, 75, 85),
};

constexpr std::array kStcn{
    From(Source::LocationId, "HOLE_ID", "ID"),
    Step("STCN_DPTH", "2DP", "m", 5, 5),
    Words("STCN_TYP", ListId::ConeTest),
    Words("STCN_REF", ListId::Tool, 50),
    Number("STCN_RES", "3DP", "MN/m2", 120, 24000),
    Number("STCN_FRES", "4DP", "MN/m2", 20, 3500),
    Blank("STCN_PWP1", "4DP", "MN/m2"),
    Number("STCN_PWP2", "4DP", "MN/m2", -300, 9000),
    Blank("STCN_PWP3", "4DP", "MN/m2"),
    Number("STCN_CON", "1DP", "uS/cm", 100, 9000, 10),
    Number("STCN_TEMP", "1DP", "degC", 90, 140, 20),
    Blank("STCN_PH", "X"),
    Number("STCN_SLP1", "1DP", "deg", 0, 40, 60),
    Number("STCN_SLP2", "1DP", "deg", 0, 40, 60),
    Blank("STCN_REDX", "1DP", "mV"),
    Blank("STCN_FFD", "1DP", "%"),
    Blank("STCN_PMT", "1DP", "counts/s"),
    Blank("STCN_PID", "1DP", "ppm"),
    Blank("STCN_FID", "1DP", "ppm"),
    Blank("FILE_FSET", "X"),
};

constexpr std::array kSamp{
    From(Source::LocationId, "HOLE_ID", "ID"),
    From(Source::SampleTop, "SAMP_TOP", "2DP", "m"),
    From(Source::SampleReference, "SAMP_REF", "X"),
    From(Source::SampleType, "SAMP_TYPE", "PA"),
    Number("SAMP_DIA", "0DP", "mm", 38, 102, 30),
    From(Source::SampleBase, "SAMP_BASE", "2DP", "m"),
    From(Source::Description, "SAMP_DESC", "X", "", 5),
    Number("SAMP_UBLO", "0DP", "", 8, 60, 20),
    Words("SAMP_REM", ListId::SampleRemark, 8),
    From(Source::Moment, "SAMP_DATE", "DT", "dd/mm/yyyy", 70),
    From(Source::Moment, "SAMP_TIME", "DT", "hhmm", 40),
    Number("SAMP_BAR", "1DP", "Bar", 9, 11, 2),
    Number("SAMP_WDEP", "2DP", "m", 50, 900, 10),
    Number("SAMP_TEMP", "0DP", "degC", 4, 18, 3),
    Blank("SAMP_PRES", "1DP", "Bar"),
    Blank("SAMP_FLOW", "1DP", "l/min"),
    Blank("GEOL_STAT", "X"),
    Blank("FILE_FSET", "X"),
};

constexpr std::array kPref{
    From(Source::LocationId, "HOLE_ID", "ID"),
    From(Source::PointDepth, "PREF_TDEP", "2DP", "m"),
    From(Source::Moment, "PREF_DATE", "DT", "dd/mm/yyyy"),
    Coded("PREF_TYPE", ListId::MonitoringPoint),
    Number("PREF_TRPS", "2DP", "m", 50, 300),
    Number("PREF_BRPS", "2DP", "m", 400, 900),
    Words("PREF_REM", ListId::FieldRemark, 20),
    Blank("FILE_FSET", "X"),
};

constexpr std::array kPobs{
    From(Source::LocationId, "HOLE_ID", "ID"),
    From(Source::PointDepth, "PREF_TDEP", "2DP", "m"),
    From(Source::Reading, "POBS_DATE", "DT", "dd/mm/yyyy"),
    From(Source::Reading, "POBS_TIME", "DT", "hhmm"),
    Number("POBS_DEP", "2DP", "m", 40, 900),
    Number("POBS_HEAD", "2DP", "m", 10, 500, 40),
    Words("POBS_REM", ListId::FieldRemark, 4),
};

constexpr Set kSampled = SetOf(Rig::Cable, Rig::Rotary, Rig::Pit, Rig::WindowSampler);

constexpr std::array kFieldGroups{
    Group{.name = "PROJ", .level = Level::Project, .columns = kProj},
    Group{.name = "FILE", .level = Level::FileSet, .columns = kFile, .keyCount = 2},
    Group{.name = "HOLE", .columns = kHole, .hasChildren = true},
    Group{.name = "GEOL", .columns = kGeol, .keyCount = 3, .rigs = kSampled, .spacing = 130},
    Group{.name = "DETL",
          .columns = kDetl,
          .keyCount = 3,
          .rigs = SetOf(Rig::Cable, Rig::Pit),
          .spacing = 400},
    Group{.name = "CDIA",
          .columns = kCdia,
          .keyCount = 2,
          .rigs = SetOf(Rig::Cable, Rig::Rotary),
          .spacing = 700},
    Group{.name = "CORE",
          .columns = kCore,
          .keyCount = 3,
          .rigs = SetOf(Rig::Rotary),
          .spacing = 150},
    Group{.name = "ISPT",
          .columns = kIspt,
          .keyCount = 2,
          .rigs = SetOf(Rig::Cable, Rig::WindowSampler),
          .spacing = 100},
    Group{.name = "STCN", .columns = kStcn, .keyCount = 2, .rigs = SetOf(Rig::Cone), .spacing = 5},
    Group{.name = "SAMP",
          .level = Level::Sample,
          .columns = kSamp,
          .keyCount = 4,
          .hasChildren = true},
};

constexpr std::array kMonitoringGroups{
    Group{.name = "PREF", .columns = kPref, .keyCount = 2, .hasChildren = true, .perPoint = true},
    Group{.name = "POBS", .level = Level::Point, .columns = kPobs, .keyCount = 4},
};

}  // namespace

Catalogue Ags3Catalogue() {
  Catalogue catalogue;
  catalogue.Add(kFieldGroups);
  catalogue.Add(Ags3LabGroups());
  catalogue.Add(kMonitoringGroups);
  return catalogue;
}

}  // namespace quorvane::generate

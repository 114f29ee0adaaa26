#include "generate_lists.h"

#include <array>

namespace quorvane::generate {

namespace {

constexpr std::array kRig{Code{"CP", "Cable percussion"}, Code{"RC", "Rotary cored"},
                          Code{"TP", "Trial pit"}, Code{"WS", "Window sampler"},
                          Code{"CPT", "Static cone penetration test"}};

constexpr std::array kLocationStatus{Code{"FINAL", "Final"}, Code{"PRELIM", "Preliminary"}};

constexpr std::array kGridReference{Code{"NGR", "National grid"}, Code{"LOCAL", "Local grid"}};

constexpr std::array kSampleType{Code{"D", "Small disturbed sample"}, Code{"B", "Bulk sample"},
                                 Code{"U", "Undisturbed open tube sample"},
                                 Code{"ES", "Soil sample for environmental testing"},
                                 Code{"C", "Core sample"}};

constexpr std::array kLegend{
    Code{"101", "Topsoil"},      Code{"102", "Made ground"},      Code{"201", "Clay"},
    Code{"202", "Silty clay"},   Code{"204", "Sandy clay"},       Code{"205", "Gravelly clay"},
    Code{"301", "Silt"},         Code{"302", "Clayey silt"},      Code{"401", "Sand"},
    Code{"404", "Clayey sand"},  Code{"406", "Gravelly sand"},    Code{"501", "Gravel"},
    Code{"504", "Sandy gravel"}, Code{"506", "Gravel with sand"}, Code{"601", "Peat"},
    Code{"801", "Mudstone"},     Code{"802", "Siltstone"},        Code{"803", "Sandstone"}};

constexpr std::array kFormation{
    Code{"MG", "Made ground"},           Code{"ALV", "Alluvium"},
    Code{"RTD", "River terrace gravel"}, Code{"GT", "Glacial till"},
    Code{"GS", "Glacial sand"},          Code{"HEAD", "Head deposits"},
    Code{"LC", "Blue marine clay"},      Code{"WMD", "Weathered mudstone"},
    Code{"CM", "Coal measures"}};

constexpr std::array kSptType{Code{"S", "Standard split spoon"}, Code{"C", "Solid cone"}};

constexpr std::array kGradingMethod{Code{"WS", "Wet sieving"}, Code{"DS", "Dry sieving"},
                                    Code{"HY", "Hydrometer"}};

constexpr std::array kSpecimenCondition{Code{"UNDISTURBED", "Undisturbed"},
                                        Code{"REMOULDED", "Remoulded"},
                                        Code{"COMPACTED", "Compacted"}};

constexpr std::array kConsolidationTest{Code{"IL", "Incremental loading"},
                                        Code{"SWELL", "Swelling pressure"}};

constexpr std::array kTriaxialTest{Code{"UU", "Unconsolidated quick undrained"},
                                   Code{"UUM", "Quick undrained, multistage"},
                                   Code{"CU", "Consolidated undrained"}};

constexpr std::array kDensityTest{Code{"BULK", "Bulk density"}, Code{"DRY", "Dry density"}};

constexpr std::array kDensitySpecimen{Code{"LIN", "Linear measurement"},
                                      Code{"IMM", "Immersion in fluid"}};

constexpr std::array kMonitoringPoint{Code{"SP", "Standpipe"}, Code{"SPIE", "Standpipe piezometer"},
                                      Code{"GMP", "Gas monitoring point"}};

constexpr std::array kReadingType{Code{"WDEP", "Depth to water", "m"},
                                  Code{"BAR", "Atmospheric pressure", "mbar"},
                                  Code{"GM", "Methane", "%vol"},
                                  Code{"GC", "Carbon dioxide", "%vol"},
                                  Code{"GO", "Oxygen", "%vol"},
                                  Code{"GFLO", "Gas flow", "l/h"},
                                  Code{"TEMP", "Ground water temperature", "degC"}};

constexpr std::array kConeTest{Code{"PC", "Piezocone"}, Code{"EC", "Electric cone"}};

constexpr std::array kCompactionTest{Code{"2.5KG", "2.5 kg rammer"}, Code{"4.5KG", "4.5 kg rammer"},
                                     Code{"VIB", "Vibrating hammer"}};

constexpr std::array kCompactionMould{Code{"STD", "One litre mould"}, Code{"CBR", "CBR mould"}};

constexpr std::array kDeterminand{Code{"AS", "Arsenic", "mg/kg"},
                                  Code{"B", "Boron, water soluble", "mg/kg"},
                                  Code{"BE", "Beryllium", "mg/kg"},
                                  Code{"CD", "Cadmium", "mg/kg"},
                                  Code{"CR", "Chromium", "mg/kg"},
                                  Code{"CRVI", "Chromium, hexavalent", "mg/kg"},
                                  Code{"CU", "Copper", "mg/kg"},
                                  Code{"HG", "Mercury", "mg/kg"},
                                  Code{"NI", "Nickel", "mg/kg"},
                                  Code{"PB", "Lead", "mg/kg"},
                                  Code{"SE", "Selenium", "mg/kg"},
                                  Code{"V", "Vanadium", "mg/kg"},
                                  Code{"ZN", "Zinc", "mg/kg"},
                                  Code{"CNT", "Cyanide, total", "mg/kg"},
                                  Code{"CNF", "Cyanide, free", "mg/kg"},
                                  Code{"PHENOL", "Phenols, total", "mg/kg"},
                                  Code{"NAPH", "Naphthalene", "mg/kg"},
                                  Code{"ACENY", "Acenaphthylene", "mg/kg"},
                                  Code{"ACENE", "Acenaphthene", "mg/kg"},
                                  Code{"FLUORE", "Fluorene", "mg/kg"},
                                  Code{"PHENAN", "Phenanthrene", "mg/kg"},
                                  Code{"ANTHR", "Anthracene", "mg/kg"},
                                  Code{"FLUORA", "Fluoranthene", "mg/kg"},
                                  Code{"PYRENE", "Pyrene", "mg/kg"},
                                  Code{"BAA", "Benzo(a)anthracene", "mg/kg"},
                                  Code{"CHRYS", "Chrysene", "mg/kg"},
                                  Code{"BBF", "Benzo(b)fluoranthene", "mg/kg"},
                                  Code{"BKF", "Benzo(k)fluoranthene", "mg/kg"},
                                  Code{"BAP", "Benzo(a)pyrene", "mg/kg"},
                                  Code{"IP", "Indeno(1,2,3-cd)pyrene", "mg/kg"},
                                  Code{"DAHA", "Dibenzo(a,h)anthracene", "mg/kg"},
                                  Code{"BGHIP", "Benzo(ghi)perylene", "mg/kg"},
                                  Code{"TPH1", "Petroleum hydrocarbons C8-C10", "mg/kg"},
                                  Code{"TPH2", "Petroleum hydrocarbons C10-C21", "mg/kg"},
                                  Code{"TPH3", "Petroleum hydrocarbons C21-C35", "mg/kg"},
                                  Code{"BENZ", "Benzene", "ug/kg"},
                                  Code{"TOL", "Toluene", "ug/kg"},
                                  Code{"EBENZ", "Ethylbenzene", "ug/kg"},
                                  Code{"XYL", "Xylene", "ug/kg"},
                                  Code{"PHS", "pH value", "pH"},
                                  Code{"SO4A", "Sulphate, acid soluble", "%"},
                                  Code{"SO4W", "Sulphate, water soluble", "g/l"},
                                  Code{"SULPH", "Sulphur, total", "%"},
                                  Code{"CL", "Chloride, water soluble", "mg/l"},
                                  Code{"TOC", "Total organic carbon", "%"}};

constexpr std::array kMatrix{Code{"SOIL", "Soil"}, Code{"LEACHATE", "Leachate"}};

constexpr std::array kResultType{Code{"TRG", "Regular result"}, Code{"SUR", "Surrogate"}};

constexpr std::array kResultBasis{Code{"DW", "Dry weight"}, Code{"AR", "As received"}};

constexpr std::array kResultPlace{Code{"LB", "Laboratory"}, Code{"FI", "Field"}};

constexpr std::array kFileType{Code{"PDF", "Portable document"}, Code{"JPG", "Picture"}};

constexpr std::array kDocumentType{Code{"LOG", "Location log"}, Code{"PHOTO", "Photograph"}};

constexpr std::array kSieveSize{
    Code{"125"},   Code{"90.0"},  Code{"75.0"},   Code{"63.0"},   Code{"50.0"},    Code{"37.5"},
    Code{"28.0"},  Code{"20.0"},  Code{"14.0"},   Code{"10.0"},   Code{"6.30"},    Code{"5.00"},
    Code{"3.35"},  Code{"2.00"},  Code{"1.18"},   Code{"0.600"},  Code{"0.425"},   Code{"0.300"},
    Code{"0.212"}, Code{"0.150"}, Code{"0.0630"}, Code{"0.0200"}, Code{"0.00600"}, Code{"0.00200"}};

constexpr std::array kLoadIncrement{Code{"25"},  Code{"50"},  Code{"100"},  Code{"200"},
                                    Code{"400"}, Code{"800"}, Code{"1600"}, Code{"800"},
                                    Code{"200"}, Code{"50"}};

/// Columns take their units from here; a unit that is missing here cannot be written.
constexpr std::array kUnits{
    Code{"m", "metres"},
    Code{"mm", "millimetres"},
    Code{"cm2", "square centimetres"},
    Code{"%", "per cent"},
    Code{"%vol", "per cent by volume"},
    Code{"deg", "degrees"},
    Code{"degC", "degrees Celsius"},
    Code{"min", "minutes"},
    Code{"s", "seconds"},
    Code{"mm/s", "millimetres per second"},
    Code{"kPa", "kilopascals"},
    Code{"kN/m2", "kilonewtons per square metre"},
    Code{"MPa", "megapascals"},
    Code{"MN/m2", "meganewtons per square metre"},
    Code{"Bar", "bars"},
    Code{"mbar", "millibars"},
    Code{"mV", "millivolts"},
    Code{"uS/cm", "microsiemens per centimetre"},
    Code{"counts/s", "counts per second"},
    Code{"ppm", "parts per million"},
    Code{"kg", "kilograms"},
    Code{"Mg/m3", "megagrams per cubic metre"},
    Code{"m2/MN", "square metres per meganewton"},
    Code{"m2/yr", "square metres per year"},
    Code{"m/s", "metres per second"},
    Code{"l/min", "litres per minute"},
    Code{"l/h", "litres per hour"},
    Code{"mg/kg", "milligrams per kilogram"},
    Code{"ug/kg", "micrograms per kilogram"},
    Code{"mg/l", "milligrams per litre"},
    Code{"g/l", "grams per litre"},
    Code{"pH", "pH units"},
    Code{"yyyy-mm-dd", "year month day"},
    Code{"yyyy-mm-ddThh:mm", "year month day hours minutes"},
    Code{"dd/mm/yyyy", "day month year"},
    Code{"hh:mm", "hours minutes"},
    Code{"hh:mm:ss", "hours minutes seconds"},
    Code{"hhmm", "time of day"},
};

constexpr std::array kTypes{
    Code{"ID", "Unique identifier"},
    Code{"X", "Text"},
    Code{"XN", "Text or number"},
    Code{"PA", "Text listed in the ABBR group"},
    Code{"PU", "Text listed in the UNIT group"},
    Code{"RL", "Record link"},
    Code{"DT", "Date and time"},
    Code{"T", "Elapsed time"},
    Code{"DMS", "Degrees minutes seconds"},
    Code{"YN", "Yes or no"},
    Code{"U", "Value with a variable format"},
    Code{"0DP", "Value; no decimal place"},
    Code{"1DP", "Value; one decimal place"},
    Code{"2DP", "Value; two decimal places"},
    Code{"3DP", "Value; three decimal places"},
    Code{"4DP", "Value; four decimal places"},
    Code{"1SF", "Value; one significant figure"},
    Code{"2SF", "Value; two significant figures"},
    Code{"3SF", "Value; three significant figures"},
};

}  // namespace

std::span<const Code> EntriesOf(ListId list) {
  switch (list) {
    case ListId::Rig:
      return kRig;
    case ListId::LocationStatus:
      return kLocationStatus;
    case ListId::GridReference:
      return kGridReference;
    case ListId::SampleType:
      return kSampleType;
    case ListId::Legend:
      return kLegend;
    case ListId::Formation:
      return kFormation;
    case ListId::SptType:
      return kSptType;
    case ListId::GradingMethod:
      return kGradingMethod;
    case ListId::SpecimenCondition:
      return kSpecimenCondition;
    case ListId::ConsolidationTest:
      return kConsolidationTest;
    case ListId::TriaxialTest:
      return kTriaxialTest;
    case ListId::DensityTest:
      return kDensityTest;
    case ListId::DensitySpecimen:
      return kDensitySpecimen;
    case ListId::MonitoringPoint:
      return kMonitoringPoint;
    case ListId::ReadingType:
      return kReadingType;
    case ListId::ConeTest:
      return kConeTest;
    case ListId::CompactionTest:
      return kCompactionTest;
    case ListId::CompactionMould:
      return kCompactionMould;
    case ListId::Determinand:
      return kDeterminand;
    case ListId::Matrix:
      return kMatrix;
    case ListId::ResultType:
      return kResultType;
    case ListId::ResultBasis:
      return kResultBasis;
    case ListId::ResultPlace:
      return kResultPlace;
    case ListId::FileType:
      return kFileType;
    case ListId::DocumentType:
      return kDocumentType;
    case ListId::SieveSize:
      return kSieveSize;
    case ListId::LoadIncrement:
      return kLoadIncrement;
    default:
      return TextsOf(list);
  }
}

std::span<const Code> KnownUnits() {
  return kUnits;
}

std::span<const Code> KnownTypes() {
  return kTypes;
}

}  // namespace quorvane::generate

#pragma once

#include <span>
#include <string_view>

namespace quorvane::generate {

/// One entry of a list of values. Lists of plain texts use the code alone.
struct Code {
  std::string_view code;
  std::string_view description = {};
  std::string_view unit = {};  // of the readings made under this code
};

enum class ListId : unsigned char {
  None,
  // Codes that the file explains.
  Rig,
  LocationStatus,
  GridReference,
  SampleType,
  Legend,
  Formation,
  SptType,
  GradingMethod,
  SpecimenCondition,
  ConsolidationTest,
  TriaxialTest,
  DensityTest,
  DensitySpecimen,
  MonitoringPoint,
  ReadingType,
  ConeTest,
  CompactionTest,
  CompactionMould,
  Determinand,
  Matrix,
  ResultType,
  ResultBasis,
  ResultPlace,
  FileType,
  DocumentType,
  // Series of values that need no explanation.
  SieveSize,
  LoadIncrement,
  // Plain texts.
  Crew,
  Contractor,
  Laboratory,
  Method,
  Accreditation,
  SampleRemark,
  QuotedRemark,
  FieldRemark,
  LabRemark,
  Tool,
  Stratum,
  Strength,
  Colour,
  Secondary,
  Principal,
  Detail,
  Count
};

/// The entries of a list, in the order in which they are written.
std::span<const Code> EntriesOf(ListId list);

/// The entries of a list of plain texts; empty for the other lists.
std::span<const Code> TextsOf(ListId list);

/// Every unit that a generated file may use, with its description.
std::span<const Code> KnownUnits();

/// Every data type that a generated AGS 4 file may use, with its description.
std::span<const Code> KnownTypes();

}  // namespace quorvane::generate

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "findings/findings_report.h"

namespace quorvane {

/// What makes a finding the same one in another run, although lines have moved since and the file
/// stands in another folder. The views are into the report of the finding.
struct FindingIdentity {
  std::string_view fileName;  // the last part of the file's path, or more: see FileNames
  std::string_view id;        // of the message
  std::string_view group;
  std::string_view key;
  std::string_view heading;
  std::int64_t occurrence = 1;  // among the findings of a run that are alike in all else

  friend bool operator==(const FindingIdentity&, const FindingIdentity&) = default;
};

/// For tables of identities; occurrences of one finding have values of their own.
struct FindingIdentityHash {
  std::size_t operator()(const FindingIdentity& identity) const;
};

/// Tells the identities of the findings of one report. It counts occurrences, so it is to be asked
/// for every finding once, in the order of the report, which must outlive it.
class FindingIdentifier {
 public:
  FindingIdentity Identify(const FileRecord& file, const FindingRecord& finding);

  /// The identity of a finding of which everything but the occurrence is known.
  FindingIdentity Identify(FindingIdentity identity);

 private:
  // By their first occurrence.
  std::unordered_map<FindingIdentity, std::int64_t, FindingIdentityHash> counts_;
};

/// The SHA-256 of an identity, as 64 hexadecimal digits: two identities have the same one only when
/// all their parts are the same.
std::string Fingerprint(const FindingIdentity& identity);

}  // namespace quorvane

#include "findings/finding_identity.h"

#include <functional>

#include "findings/sha256.h"

namespace quorvane {
namespace {

std::string_view FileNameOf(std::string_view path) {
  return path.substr(path.find_last_of("\\/") + 1);
}

/// Appends a part behind its length, so that no two lists of parts give the same text.
void AppendPart(std::string& text, std::string_view part) {
  text.append(std::to_string(part.size())).append(":").append(part);
}

}  // namespace

std::size_t FindingIdentityHash::operator()(const FindingIdentity& identity) const {
  constexpr std::size_t factor = 1099511628211U;
  auto hash = static_cast<std::size_t>(identity.occurrence);
  for (const std::string_view part :
       {identity.fileName, identity.id, identity.group, identity.key, identity.heading}) {
    hash = hash * factor + std::hash<std::string_view>()(part);
  }
  return hash;
}

FindingIdentity FindingIdentifier::Identify(const FileRecord& file, const FindingRecord& finding) {
  return Identify({FileNameOf(file.path), finding.definition->id, file.GroupName(finding),
                   finding.key, file.HeadingName(finding)});
}

FindingIdentity FindingIdentifier::Identify(FindingIdentity identity) {
  identity.occurrence = 1;
  identity.occurrence = ++counts_[identity];
  return identity;
}

std::string Fingerprint(const FindingIdentity& identity) {
  std::string text;
  for (const std::string_view part :
       {identity.fileName, identity.id, identity.group, identity.key, identity.heading}) {
    AppendPart(text, part);
  }
  AppendPart(text, std::to_string(identity.occurrence));
  return Sha256(text);
}

}  // namespace quorvane

#include "findings/baseline.h"

#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "findings/file_names.h"
#include "findings/finding_identity.h"

namespace quorvane {
namespace {

template <typename File>
std::vector<std::string> NamesOf(const std::vector<File>& files) {
  std::vector<std::string_view> paths;
  paths.reserve(files.size());
  for (const File& file : files)
    paths.emplace_back(file.path);
  return FileNames(paths);
}

/// The findings of a file of the earlier run that have not been found again.
class EarlierFindings {
 public:
  EarlierFindings(std::string_view fileName, const EarlierFile& file) : file_(file) {
    FindingIdentifier identifier;
    indices_.reserve(file.findings.size());
    for (std::size_t index = 0; index < file.findings.size(); ++index) {
      const EarlierFinding& finding = file.findings[index];
      indices_.emplace(
          identifier.Identify({fileName, finding.id, finding.group, finding.key, finding.heading}),
          index);
    }
    isGone_.assign(file.findings.size(), true);
  }

  /// Takes out a finding; false when it is not among them.
  bool Take(const FindingIdentity& identity) {
    const auto found = indices_.find(identity);
    if (found == indices_.end()) return false;
    isGone_[found->second] = false;
    return true;
  }

  /// Those that are left.
  EarlierFile Rest() const {
    EarlierFile rest{file_.path, {}};
    for (std::size_t index = 0; index < isGone_.size(); ++index) {
      if (isGone_[index]) rest.findings.push_back(file_.findings[index]);
    }
    return rest;
  }

 private:
  const EarlierFile& file_;
  std::unordered_map<FindingIdentity, std::size_t, FindingIdentityHash> indices_;
  std::vector<bool> isGone_;
};

void DropFyis(EarlierRun& run) {
  for (EarlierFile& file : run.files) {
    std::erase_if(file.findings,
                  [](const EarlierFinding& finding) { return finding.severity == Severity::Fyi; });
  }
}

void MarkAllNew(FileRecord& file) {
  for (FindingRecord& finding : file.findings)
    finding.state = FindingState::New;
}

/// Marks the findings of a file; returns those of the earlier run that it no longer has.
EarlierFile CompareFile(std::string_view name, FileRecord& file, const EarlierFile& earlierFile) {
  EarlierFindings earlier(name, earlierFile);
  FindingIdentifier identifier;
  for (FindingRecord& finding : file.findings) {
    const FindingIdentity identity =
        identifier.Identify({name, finding.definition->id, file.GroupName(finding), finding.key,
                             file.HeadingName(finding)});
    finding.state = earlier.Take(identity) ? FindingState::Known : FindingState::New;
  }
  return earlier.Rest();
}

}  // namespace

void CompareWithEarlierRun(FindingsReport& report, EarlierRun earlier, const std::string& path) {
  if (report.settings.suppressFyi) DropFyis(earlier);
  ComparisonRecord& record = report.comparison.emplace();
  record.baseline = path;

  const std::vector<std::string> earlierNames = NamesOf(earlier.files);
  std::unordered_map<std::string_view, std::size_t> earlierFiles;
  for (std::size_t index = 0; index < earlierNames.size(); ++index)
    earlierFiles.emplace(earlierNames[index], index);

  const std::vector<std::string> names = NamesOf(report.files);
  for (std::size_t index = 0; index < names.size(); ++index) {
    FileRecord& file = report.files[index];
    const auto found = earlierFiles.find(names[index]);
    if (found == earlierFiles.end()) {
      MarkAllNew(file);
      continue;
    }
    EarlierFile rest = CompareFile(names[index], file, earlier.files[found->second]);
    earlierFiles.erase(found);
    if (rest.findings.empty()) continue;
    (file.isComplete ? record.gone : record.notCompared).push_back(std::move(rest));
  }
  // In the order of the earlier run.
  for (std::size_t index = 0; index < earlierNames.size(); ++index) {
    EarlierFile& file = earlier.files[index];
    if (earlierFiles.contains(earlierNames[index]) && !file.findings.empty())
      record.notCompared.push_back(std::move(file));
  }
  record.texts = std::move(earlier.texts);
}

}  // namespace quorvane

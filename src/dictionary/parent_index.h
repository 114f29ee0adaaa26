#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <utility>
#include <vector>

#include "dictionary/ags_dictionary.h"
#include "dictionary/parent_choice.h"

namespace quorvane {

/// Finds the groups of a dictionary that may be the parent of another one. Groups with the same key
/// are held together under the rarest of their key headings, and groups that ask with the same key
/// share their answer, so that a file may define very many groups.
class ParentIndex {
 public:
  /// The dictionary must outlive the index and its groups must keep their names and keys.
  explicit ParentIndex(const AgsDictionary& dictionary);

  ParentIndex(const ParentIndex&) = delete;
  ParentIndex& operator=(const ParentIndex&) = delete;

  /// The best candidates for the parent of a group; list 0 holds those whose key count is that of
  /// the group, list 1 the others. The lists live as long as the index.
  ///
  /// A key heading that begins with the group's name and "_" is the group's own, the others are
  /// inherited. A candidate is another group that has key headings, all of them inherited ones, and
  /// a key count of at most the number of inherited headings. Question marks count where the
  /// candidate's name begins with one, else headings are compared without any. Of several
  /// candidates the best are those whose key count is not below the greatest one that is still
  /// smaller than the group's own.
  std::array<CandidateList, 2> BestCandidates(int group);

 private:
  /// Headings by number, ascending, each once.
  using HeadingSet = std::vector<int>;

  /// How the headings of a candidate are compared.
  enum class Marks : std::uint8_t { Count, Removed };

  /// What makes groups the same as candidates.
  struct Signature {
    Marks marks = Marks::Removed;
    int keyCount = 0;
    HeadingSet headings;

    bool operator<(const Signature& other) const {
      return std::tie(marks, keyCount, headings) <
             std::tie(other.marks, other.keyCount, other.headings);
    }
  };

  struct Bundle {
    const Signature* signature;
    std::uint64_t mask;       // a superset of a set has all bits of its mask
    std::vector<int> groups;  // ascending
  };

  /// What makes groups the same as children.
  struct Question {
    HeadingSet inherited;
    std::size_t inheritedCount = 0;
    int keyCount = 0;

    bool operator<(const Question& other) const {
      return std::tie(inherited, inheritedCount, keyCount) <
             std::tie(other.inherited, other.inheritedCount, other.keyCount);
    }
  };

  struct Answer {
    std::vector<int> sameKeyCount;  // dictionary indices, ascending
    std::vector<int> others;
  };

  int NumberOf(std::string_view heading, Marks marks);
  HeadingSet NumbersOf(const std::vector<std::string_view>& headings, Marks marks);
  void AddCandidate(int group);
  void IndexByRarestHeading();
  void FindBundles(const HeadingSet& inherited, std::size_t inheritedCount, Marks marks,
                   std::vector<const Bundle*>& found) const;
  Answer MakeAnswer(const std::vector<std::string_view>& inherited, int keyCount);

  const AgsDictionary& dictionary_;
  std::unordered_map<std::string, int> numbers_;
  std::map<Signature, std::size_t> bundlesBySignature_;
  std::vector<Bundle> bundles_;
  std::map<std::pair<Marks, int>, std::vector<std::size_t>> bundlesByHeading_;
  std::map<Question, Answer> answers_;
};

}  // namespace quorvane

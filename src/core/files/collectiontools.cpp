// The Randomize collection tool.
#include "core/files/collectiontools.h"

#include <algorithm>
#include <cerrno>
#include <deque>
#include <set>
#include <string_view>
#include <vector>

#include "core/files/sortedkeylist.h"
#include "core/files/textfile.h"
#include "core/model/text.h"

namespace combwise {

namespace {

struct CaseLess {
  bool operator()(std::string_view a, std::string_view b) const { return SortedKeyList::less(a, b); }
};

// The kept lines in file order. A line is kept only when no kept line
// begins with it; in the case-ignoring order the kept lines that begin with
// a text stand together from the first one not below it, so one ordered
// lookup answers what a scan of all kept lines would.
class DistinctLines {
 public:
  bool add(std::string line) {
    const auto at = m_index.lower_bound(line);
    if (at != m_index.end() && startsWithIgnoreCase(*at, line)) return false;
    m_lines.push_back(std::move(line));
    m_index.insert(m_lines.back());
    return true;
  }
  const std::deque<std::string>& lines() const { return m_lines; }

 private:
  std::deque<std::string> m_lines;  // a deque keeps the index's views valid
  std::set<std::string_view, CaseLess> m_index;
};

RandomizeResult failure(RandomizeResult result, std::string message) {
  result.message = message;
  result.status = Status::failure(std::move(message));
  return result;
}

}  // namespace

std::optional<std::string> randomizedPath(const std::string& collectionPath) {
  const auto dot = collectionPath.rfind('.');
  if (dot == std::string::npos) return std::nullopt;
  return collectionPath.substr(0, dot) + "-noduprandom.txt";
}

RandomizeResult randomizeCollection(const std::string& collectionPath, RandomSource& random,
                                    const StatusReport& progress, const PumpEvents& events) {
  RandomizeResult result;
  const auto output = randomizedPath(collectionPath);
  if (!output) return failure(result, "\"" + collectionPath + "\" has no extension: nothing to randomize");
  result.outputPath = *output;

  DistinctLines distinct;
  {
    LineReader reader(collectionPath);
    if (!reader.isOpen()) return failure(result, reader.error());
    while (auto line = reader.next()) {
      ++result.readCount;
      if (distinct.add(std::move(*line))) ++result.distinctCount;
      report(progress, "source " + NumberText(result.readCount) + " " + NumberText(result.distinctCount));
      pump(events);
    }
    if (reader.failed()) return failure(result, reader.error());
  }

  // Ranking by key and line in the sorted list's order: one sort of all the
  // keyed lines gives the order inserting them one by one would.
  std::vector<std::string> keyed;
  keyed.reserve(distinct.lines().size());
  for (const auto& line : distinct.lines()) {
    const long long key = roundHalfEven(random.next() * 99997 + 1);
    keyed.push_back(zeroPadded(key, 5) + line);
    report(progress, "no dup " + NumberText(static_cast<long long>(keyed.size())));
  }
  std::stable_sort(keyed.begin(), keyed.end(), CaseLess{});

  std::string content;
  long long written = 0;
  for (const auto& item : keyed) {
    content.append(item, 5);
    content += "\r\n";
    report(progress, "random " + NumberText(++written));
  }
  errno = 0;
  if (!replaceFileContent(*output, content)) return failure(result, fileErrorMessage("write", *output, errno));
  result.message = *output + " randomized";
  return result;
}

}  // namespace combwise

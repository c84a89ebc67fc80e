// The word list's wildcard matcher against a table that tries every split:
// the same answer, in time linear in practice (libFuzzer's time limit
// catches a slow input).
#include <vector>

#include "core/files/simplearray.h"
#include "fuzzsupport.h"

using namespace combwise;

namespace {

// Whether one token (not "*") at pattern[p] takes c; `next` is after it.
bool takes(char c, std::string_view pattern, std::size_t p, std::size_t& next) {
  next = p + 1;
  const char token = pattern[p];
  if (token == '?') return true;
  if (token == '#') return c >= '0' && c <= '9';
  if (token != '[') return c == token;
  bool negate = false;
  if (next < pattern.size() && pattern[next] == '!') {
    negate = true;
    ++next;
  }
  bool hit = false;
  bool first = true;
  while (next < pattern.size() && (pattern[next] != ']' || first)) {
    first = false;
    const auto low = static_cast<unsigned char>(pattern[next]);
    if (next + 2 < pattern.size() && pattern[next + 1] == '-' && pattern[next + 2] != ']') {
      const auto high = static_cast<unsigned char>(pattern[next + 2]);
      hit = hit || (static_cast<unsigned char>(c) >= low && static_cast<unsigned char>(c) <= high);
      next += 3;
    } else {
      hit = hit || static_cast<unsigned char>(c) == low;
      ++next;
    }
  }
  if (next >= pattern.size()) return false;
  ++next;
  return hit != negate;
}

bool everySplit(std::string_view text, std::string_view pattern) {
  const std::size_t n = text.size();
  std::vector<std::vector<char>> can(pattern.size() + 2, std::vector<char>(n + 1, 0));
  can[pattern.size()][n] = 1;
  for (std::size_t p = pattern.size(); p-- > 0;) {
    for (std::size_t t = n + 1; t-- > 0;) {
      if (pattern[p] == '*') {
        can[p][t] = can[p + 1][t] || (t < n && can[p][t + 1]);
      } else if (t < n) {
        std::size_t next = 0;
        can[p][t] = takes(text[t], pattern, p, next) && can[next][t + 1];
      }
    }
  }
  return can[0][0];
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = fuzz::asText(data, size);
  const std::size_t split = std::min(input.find('\n'), input.size());
  const std::string_view pattern = input.substr(0, split);
  const std::string_view text = split < input.size() ? input.substr(split + 1) : std::string_view();
  if (pattern.size() > 512 || text.size() > 512) return 0;  // keeps the reference table small
  fuzz::require(matchesWildcard(text, pattern) == everySplit(text, pattern), "the matcher agrees with every split");
  return 0;
}

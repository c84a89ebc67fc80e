// Checking print ranges and their ten-digit form.
#include "core/play/printrange.h"

#include <algorithm>

#include "core/model/text.h"

namespace combwise {

namespace {

PrintRangeCheck refused(std::string_view message) { return {std::nullopt, std::string(message)}; }

}  // namespace

PrintRangeCheck checkPrintRange(std::string_view text, long long puzzleCount) {
  text = trimmed(text);
  const auto dash = text.find('-');
  if (text.empty() || dash == std::string_view::npos) return refused(kSpecifyPrintRange);
  const long long first = leadingWhole(text.substr(0, dash));
  const long long last = leadingWhole(text.substr(dash + 1));
  if (first < 1 || last < 1 || first > last || first > puzzleCount || first > kMaxRangeNumber) {
    return refused(kPrintRangeNotCorrect);
  }
  return {PrintRange{static_cast<int>(first), static_cast<int>(std::min<long long>(last, kMaxRangeNumber))}, {}};
}

std::string rangeTag(const PrintRange& range) { return zeroPadded(range.first, 5) + zeroPadded(range.last, 5); }

std::optional<PrintRange> rangeFromTag(std::string_view tag) {
  if (tag.size() != 10 || !std::all_of(tag.begin(), tag.end(), [](char c) { return c >= '0' && c <= '9'; })) {
    return std::nullopt;
  }
  return PrintRange{static_cast<int>(leadingWhole(tag.substr(0, 5))), static_cast<int>(leadingWhole(tag.substr(5)))};
}

PrintRangeCheck parseToolRange(std::string_view text, long long puzzleCount) {
  text = trimmed(text);
  if (equalsIgnoreCase(text, "all")) return checkPrintRange("1-" + NumberText(puzzleCount), puzzleCount);
  if (!text.empty() && text.find('-') == std::string_view::npos) {
    const std::string single(text);
    return checkPrintRange(single + "-" + single, puzzleCount);
  }
  return checkPrintRange(text, puzzleCount);
}

}  // namespace combwise

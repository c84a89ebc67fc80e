// The range of puzzles to print: checking the text typed on the print range
// window ("5-10") against the collection's puzzle count, the ten-digit form
// the window keeps a checked range in ("0000500010"), and the ranges of the
// makers' tool ("5", "5-10", "all"), which the window's rules also judge.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace combwise {

inline constexpr std::string_view kSpecifyPrintRange = "Specify print range";
inline constexpr std::string_view kPrintRangeNotCorrect = "Print range not correct";
// The style of both messages.
inline constexpr std::string_view kPrintRangeStyle = "vbcritical+vbok";

// The largest number the five-digit form holds.
inline constexpr int kMaxRangeNumber = 99999;

struct PrintRange {
  int first = 0;
  int last = 0;  // may exceed the puzzle count: printing stops at the last puzzle
  friend bool operator==(const PrintRange&, const PrintRange&) = default;
};

// A range, or the message that refuses the text.
struct PrintRangeCheck {
  std::optional<PrintRange> range;
  std::string message;  // empty when the range is valid
  bool ok() const { return range.has_value(); }
};

// The window's rules. The text is trimmed; an empty text or one without "-"
// gives "Specify print range". The numbers before and after the first "-"
// are read as numbers and rounded (what is not a number reads 0). Valid
// when first >= 1, last >= 1, first <= last and first <= count; otherwise
// "Print range not correct". A last number beyond the five digits is held
// at 99999.
PrintRangeCheck checkPrintRange(std::string_view text, long long puzzleCount);

// Ten digits: first and last, each in five ("00000" format).
std::string rangeTag(const PrintRange& range);
// The range of a ten-digit text; nullopt when it is not ten digits.
std::optional<PrintRange> rangeFromTag(std::string_view tag);

// The makers' tool: "all" (any case) is 1 to the count, "N" is N-N, "N-M"
// as typed; then the window's rules and messages.
PrintRangeCheck parseToolRange(std::string_view text, long long puzzleCount);

}  // namespace combwise

// Number and text conventions shared by the whole program: the two decimal
// forms, zero-padded list numbers, the leading-number reader, and the
// rounding rules for real-to-integer conversions.
#pragma once

#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

namespace combwise {

// Decimal digits with a leading blank for a non-negative number and "-" for
// a negative one: Str(5) == " 5", Str(-5) == "-5".
std::string Str(long long n);

// Decimal digits without the sign blank: NumberText(5) == "5".
std::string NumberText(long long n);

// At least `width` digits, zero-padded ("00" gives 01..99, 100; "00000" gives
// 00042). Negative numbers keep their "-" in front of the padded digits.
std::string zeroPadded(long long n, int width);

// The "00" list number format: 1 -> "01", 25 -> "25", 100 -> "100".
inline std::string Format00(long long n) { return zeroPadded(n, 2); }

// The numeric value of the leading number of a text, 0 when there is none.
// Leading blanks, tabs and line feeds are skipped, blanks inside the digits
// are ignored (" 1 2x" reads 12), an optional sign, decimal fraction and
// exponent are accepted; the first character that cannot continue the
// number ends it.
double leadingValue(std::string_view text);

// leadingValue converted to a whole number, rounding halves to even.
long long leadingWhole(std::string_view text);

// Real to integer, the nearest whole number with halves to even (2.5 -> 2,
// 3.5 -> 4, -2.5 -> -2). Values beyond the range of long long give 0.
inline long long roundHalfEven(double value) {
  // nearbyint rounds in the default mode: to nearest, ties to even.
  return std::isfinite(value) && std::fabs(value) < 9.2e18 ? static_cast<long long>(std::nearbyint(value)) : 0;
}

// "Integer part" of a value: rounds down (-1.5 -> -2).
inline long long floorWhole(double value) {
  if (value >= 0.0 && value < 9.2e18) return static_cast<long long>(value);  // truncation is the floor here
  return std::isfinite(value) && value > -9.2e18 ? static_cast<long long>(std::floor(value)) : 0;
}

// ASCII case conversion (the program's texts are single-byte).
std::string toUpper(std::string_view text);
std::string toLower(std::string_view text);

// Case-insensitive ASCII equality and prefix test.
bool equalsIgnoreCase(std::string_view a, std::string_view b);
bool startsWithIgnoreCase(std::string_view text, std::string_view prefix);

// Blanks (and tabs) removed from both ends.
std::string_view trimmed(std::string_view text);

// The text after the last "/" or "\" of a path, the whole path when it has
// neither.
std::string_view fileNameOf(std::string_view path);

// The text with each control character and each byte that is not part of
// valid UTF-8 shown as "?", so bytes from a damaged file never reach the
// screen raw.
std::string printableText(std::string_view text);
inline bool isPrintableText(std::string_view text) { return printableText(text) == text; }

}  // namespace combwise

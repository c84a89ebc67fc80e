// Number and text conventions shared by the whole program.
#include "core/model/text.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <string>

namespace combwise {

std::string Str(long long n) { return n < 0 ? std::to_string(n) : " " + std::to_string(n); }

std::string NumberText(long long n) { return std::to_string(n); }

std::string zeroPadded(long long n, int width) {
  const bool negative = n < 0;
  std::string digits =
      std::to_string(negative ? -static_cast<unsigned long long>(n) : static_cast<unsigned long long>(n));
  if (static_cast<int>(digits.size()) < width) digits.insert(0, width - digits.size(), '0');
  return negative ? "-" + digits : digits;
}

double leadingValue(std::string_view text) {
  std::size_t i = 0;
  const auto skippable = [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; };
  while (i < text.size() && skippable(text[i])) ++i;

  std::string number;  // collected characters in a form strtod understands
  if (i < text.size() && (text[i] == '-' || text[i] == '+')) number += text[i++];

  bool anyDigit = false;
  bool seenPoint = false;
  for (; i < text.size(); ++i) {
    const char c = text[i];
    if (c == ' ' || c == '\t') continue;
    if (std::isdigit(static_cast<unsigned char>(c))) {
      number += c;
      anyDigit = true;
    } else if (c == '.' && !seenPoint) {
      number += c;
      seenPoint = true;
    } else {
      break;
    }
  }
  if (!anyDigit) return 0.0;

  // An exponent counts only when digits follow it.
  if (i < text.size() && (text[i] == 'e' || text[i] == 'E' || text[i] == 'd' || text[i] == 'D')) {
    std::size_t j = i + 1;
    std::string exponent = "e";
    if (j < text.size() && (text[j] == '-' || text[j] == '+')) exponent += text[j++];
    bool expDigit = false;
    while (j < text.size() && std::isdigit(static_cast<unsigned char>(text[j]))) {
      exponent += text[j++];
      expDigit = true;
    }
    if (expDigit) number += exponent;
  }
  return std::strtod(number.c_str(), nullptr);
}

long long leadingWhole(std::string_view text) { return roundHalfEven(leadingValue(text)); }

std::string toUpper(std::string_view text) {
  std::string out(text);
  std::transform(out.begin(), out.end(), out.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return out;
}

std::string toLower(std::string_view text) {
  std::string out(text);
  std::transform(out.begin(), out.end(), out.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return out;
}

namespace {
bool sameLetter(char a, char b) {
  return std::toupper(static_cast<unsigned char>(a)) == std::toupper(static_cast<unsigned char>(b));
}
}  // namespace

bool equalsIgnoreCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), sameLetter);
}

bool startsWithIgnoreCase(std::string_view text, std::string_view prefix) {
  return text.size() >= prefix.size() && std::equal(prefix.begin(), prefix.end(), text.begin(), sameLetter);
}

std::string_view trimmed(std::string_view text) {
  const auto blank = [](char c) { return c == ' ' || c == '\t'; };
  while (!text.empty() && blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && blank(text.back())) text.remove_suffix(1);
  return text;
}

std::string_view fileNameOf(std::string_view path) {
  const auto pos = path.find_last_of("/\\");
  return pos == std::string_view::npos ? path : path.substr(pos + 1);
}

std::string printableText(std::string_view text) {
  std::string shown;
  shown.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if (byte < 0x80) {
      shown += byte < 0x20 || byte == 0x7f ? '?' : static_cast<char>(byte);
      ++i;
      continue;
    }
    // The length of a UTF-8 sequence from its lead byte, and the smallest
    // code point it may hold (shorter forms of a point are not valid).
    const std::size_t length = byte >= 0xc2 && byte <= 0xdf   ? 2
                               : byte >= 0xe0 && byte <= 0xef ? 3
                               : byte >= 0xf0 && byte <= 0xf4 ? 4
                                                              : 0;
    unsigned point = length == 2 ? byte & 0x1fu : length == 3 ? byte & 0x0fu : byte & 0x07u;
    bool valid = length > 0 && i + length <= text.size();
    for (std::size_t k = 1; valid && k < length; ++k) {
      const auto next = static_cast<unsigned char>(text[i + k]);
      valid = (next & 0xc0) == 0x80;
      point = (point << 6) | (next & 0x3fu);
    }
    valid = valid && !(length == 3 && point < 0x800) && !(length == 4 && (point < 0x10000 || point > 0x10ffff)) &&
            !(point >= 0xd800 && point <= 0xdfff) && !(point >= 0x80 && point < 0xa0);
    if (valid) {
      shown.append(text.substr(i, length));
      i += length;
    } else {
      shown += '?';
      ++i;
    }
  }
  return shown;
}

}  // namespace combwise

// What layout needs to know of a drawing surface's current font: how wide
// and how high a text is, in twips. The GUI answers with the font metrics of
// the screen, a printer or an image; tests answer with fixed sizes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace combwise {

class TextMeasure {
 public:
  virtual ~TextMeasure() = default;
  virtual double textWidth(std::string_view text) const = 0;
  virtual double textHeight(std::string_view text) const = 0;
};

// Breaks a text into lines that fit `width` twips as `measure` draws them. A
// text without a line break that fits is one line; otherwise it is cut into
// words at blanks, a word joins the line while the line with it still fits,
// a CR or LF ends the line at once, and a word wider than the width stands
// alone on its line. An empty text gives no lines.
std::vector<std::string> WrapText(std::string_view text, const TextMeasure& measure, double width);

}  // namespace combwise

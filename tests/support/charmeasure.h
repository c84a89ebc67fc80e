// A text measure for layout tests: every character is 10 twips wide and
// every line 100 high, so positions can be worked out by hand.
#pragma once

#include <string_view>

#include "core/play/textmeasure.h"

namespace combwise::testing {

class CharMeasure : public TextMeasure {
 public:
  double textWidth(std::string_view text) const override { return 10.0 * static_cast<double>(text.size()); }
  double textHeight(std::string_view) const override { return 100.0; }
};

}  // namespace combwise::testing

// Contrast ratios of colours.
#include "core/files/contrast.h"

#include <algorithm>
#include <cmath>

namespace combwise {

namespace {

double linear(int channel) {
  const double c = std::clamp(channel, 0, 255) / 255.0;
  return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

}  // namespace

double relativeLuminance(int colour) {
  return 0.2126 * linear(redOf(colour)) + 0.7152 * linear(greenOf(colour)) + 0.0722 * linear(blueOf(colour));
}

double contrastRatio(int a, int b) {
  const double la = relativeLuminance(a);
  const double lb = relativeLuminance(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

int blendColours(int over, int under, double opacity) {
  opacity = std::clamp(opacity, 0.0, 1.0);
  auto mix = [opacity](int a, int b) { return static_cast<int>(std::lround(opacity * a + (1.0 - opacity) * b)); };
  return rgb(mix(redOf(over), redOf(under)), mix(greenOf(over), greenOf(under)), mix(blueOf(over), blueOf(under)));
}

SchemeBoardColours SchemeBoardColours::of(const ColourScheme& scheme) {
  SchemeBoardColours colours;
  colours.fill = scheme[kHexFill];
  colours.outline = scheme[kOutline];
  colours.numbers = scheme[kNumbers];
  colours.given = scheme[kGiven];
  colours.entries = scheme[kEntries];
  colours.highlight = scheme[kHighlight];
  return colours;
}

}  // namespace combwise

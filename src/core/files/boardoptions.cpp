// Start-up board settings and the options samples' click rules.
#include "core/files/boardoptions.h"

#include <algorithm>

#include "core/files/colourscheme.h"

namespace combwise {

Settings startupSettings() {
  Settings settings;
  settings.schemeName = "xp.col";
  settings.boardFontName = "Arial";
  settings.BoardFontSize = 10;
  settings.OutlineWidth = 2;
  settings.OutlineColour = rgb(2, 2, 2);
  settings.HexFillColour = rgb(250, 250, 250);
  settings.GivenLetterColour = rgb(200, 10, 10);
  settings.EntryColour = rgb(10, 100, 10);
  settings.HexNumberColour = rgb(128, 128, 128);
  return settings;
}

int nextOutlineWidth(int width, SampleClick click) {
  width += click == SampleClick::Left ? 1 : -1;
  if (width > kMaxOutlineWidth) return kMinOutlineWidth;
  return std::max(width, kMinOutlineWidth);
}

int nextBoardFontSize(int size, SampleClick click) {
  size += click == SampleClick::Left ? 1 : -1;
  return std::clamp(size, kMinBoardFontSize, kMaxBoardFontSize);
}

}  // namespace combwise

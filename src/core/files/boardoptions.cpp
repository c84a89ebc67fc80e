// Start-up board settings and the options samples' click rules.
#include "core/files/boardoptions.h"

#include <algorithm>

#include "core/files/colourscheme.h"

namespace combwise {

Settings startupSettings() {
  Settings settings;
  settings.schemeName = "xp.col";
  settings.boardFontName = kDefaultBoardFontName;
  settings.BoardFontSize = kDefaultBoardFontSize;
  settings.OutlineWidth = kDefaultOutlineWidth;
  settings.OutlineColour = rgb(2, 2, 2);
  settings.HexFillColour = rgb(250, 250, 250);
  settings.GivenLetterColour = rgb(200, 10, 10);
  settings.EntryColour = rgb(10, 100, 10);
  settings.HexNumberColour = rgb(128, 128, 128);
  return settings;
}

BoardLook boardLook(const Settings& settings) {
  BoardLook look;
  if (!settings.boardFontName.empty()) look.fontName = settings.boardFontName;
  if (settings.BoardFontSize > 0) look.fontSize = settings.BoardFontSize;
  if (settings.OutlineWidth > 0) look.outlineWidth = settings.OutlineWidth;
  look.outline = settings.OutlineColour;
  look.fill = settings.HexFillColour;
  look.numbers = settings.HexNumberColour;
  look.given = settings.GivenLetterColour;
  look.entries = settings.EntryColour;
  return look;
}

std::array<int, kBoardColours> boardColours(const Settings& settings) {
  return {settings.OutlineColour, settings.GivenLetterColour, settings.HexNumberColour, settings.EntryColour,
          settings.HexFillColour};
}

void applyOptions(const OptionsChoice& choice, Settings& settings, ColourScheme& scheme) {
  scheme = choice.scheme;
  prepareSchemePaint(scheme);
  settings.schemeName = scheme.name;
  settings.schemeColour13 = scheme[ColourScheme::kButtonOverride];
  settings.OutlineColour = choice.colours[static_cast<std::size_t>(BoardColour::Border)];
  settings.GivenLetterColour = choice.colours[static_cast<std::size_t>(BoardColour::FixedLetters)];
  settings.HexNumberColour = choice.colours[static_cast<std::size_t>(BoardColour::Grid)];
  settings.EntryColour = choice.colours[static_cast<std::size_t>(BoardColour::User)];
  settings.HexFillColour = choice.colours[static_cast<std::size_t>(BoardColour::HexFill)];
  settings.OutlineWidth = choice.outlineWidth;
  settings.BoardFontSize = choice.fontSize;
  settings.boardFontName = choice.fontName;
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

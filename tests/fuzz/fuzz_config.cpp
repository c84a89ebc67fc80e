// The configuration file: any content reads without failing, the numbers
// read stay in the options window's ranges, and what was read, saved and
// read again is the same.
#include "core/files/boardoptions.h"
#include "core/files/config.h"
#include "fuzzsupport.h"

using namespace combwise;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string& folder = fuzz::scratchFolder();
  fuzz::scratchFile("combwise.cfg", fuzz::asText(data, size));
  // Reading starts from the settings start-up sets, as in the game.
  Settings read = startupSettings();
  ReadcfgFile(folder, read);
  fuzz::require(read.BoardFontSize >= kMinBoardFontSize && read.BoardFontSize <= kMaxBoardFontSize &&
                    read.OutlineWidth >= kMinOutlineWidth && read.OutlineWidth <= kMaxOutlineWidth,
                "the font size and border width are in range");
  for (const int colour : {read.OutlineColour, read.GivenLetterColour, read.HexNumberColour, read.EntryColour,
                           read.HexFillColour, read.schemeColour13})
    fuzz::require(colour >= 0 && colour <= kMaxColour, "colours are 24-bit");
  fuzz::require(isSchemeName(read.schemeName), "the scheme name is printable and names a scheme");
  fuzz::require(SavecfgFile(folder, read).ok(), "the settings save");
  Settings again = startupSettings();
  ReadcfgFile(folder, again);
  fuzz::require(again == read, "saved settings read back the same");
  return 0;
}

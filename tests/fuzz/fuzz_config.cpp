// The configuration file: any content reads without failing, and what was
// read, saved and read again is the same.
#include "core/files/config.h"
#include "fuzzsupport.h"

using namespace combwise;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string& folder = fuzz::scratchFolder();
  fuzz::scratchFile("combwise.cfg", fuzz::asText(data, size));
  Settings read;
  ReadcfgFile(folder, read);
  fuzz::require(SavecfgFile(folder, read).ok(), "the settings save");
  Settings again;
  ReadcfgFile(folder, again);
  fuzz::require(again == read, "saved settings read back the same");
  return 0;
}

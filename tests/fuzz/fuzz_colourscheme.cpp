// The colour-scheme file: any text is searched without failing, the
// colours found are 24-bit, and the scheme list and the loaders agree on
// what a file holds.
#include "core/files/colourscheme.h"
#include "fuzzsupport.h"

using namespace combwise;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = fuzz::asText(data, size);
  // The first line names the scheme looked for, so that found schemes are common.
  const std::string name(text.substr(0, std::min(text.find('\n'), text.size())));
  std::array<int, ColourScheme::kColours> colours{};
  const SchemeSearch search = readSchemeText(text, name, colours);
  for (int colour : colours) fuzz::require(colour >= 0 && colour <= 0xFFFFFF, "colours are 24-bit");
  fuzz::require(search != SchemeSearch::NotFound || colours == std::array<int, ColourScheme::kColours>{},
                "a scheme not found changes no colour");

  const std::string path = fuzz::scratchFile("all.col", text);
  for (const auto& entry : schemeList(path))
    fuzz::require(entry.find(".col") == std::string::npos, "entries end before .col");
  ColourScheme scheme;
  const SchemeLoad load = loadOptionsScheme(path, name, scheme, DesignedColours{});
  for (int colour : scheme.colours) fuzz::require(colour >= 0 && colour <= 0xFFFFFF, "loaded colours are 24-bit");
  (void)load;
  return 0;
}

// Reading colour schemes from the scheme file and settling what they paint.
#include "core/files/colourscheme.h"

#include <algorithm>

#include "core/files/programfiles.h"
#include "core/files/textfile.h"
#include "core/model/text.h"

namespace combwise {

namespace {

constexpr std::string_view kSchemeMark = ".col";

int colourField(std::string_view field) { return static_cast<int>(std::clamp<long long>(leadingWhole(field), 0, 255)); }

SchemeLoad loadScheme(const std::string& schemeFile, const std::string& name, ColourScheme& scheme,
                      const DesignedColours& designed, std::string_view wordsBefore, const char* fallback) {
  if (toLower(name) != "default.col") {
    LineReader reader(schemeFile);
    auto colours = scheme.colours;
    const SchemeSearch search = readScheme([&reader] { return reader.next(); }, name, colours);
    if (search == SchemeSearch::NotFound) {
      scheme.name = fallback;
      const std::string shownName = printableText(name);
      std::string detail = reader.failed() ? reader.error() : schemeFile + " holds no scheme " + shownName;
      return {0, std::string(wordsBefore) + shownName + " not found", std::move(detail)};
    }
    scheme.colours = colours;
    scheme.name = name;
    if (search == SchemeSearch::Complete) return {scheme[ColourScheme::kBackground], {}, {}};
  } else {
    scheme.name = name;
  }
  scheme[ColourScheme::kBackground] = designed.listBox;
  scheme[ColourScheme::kButtons] = designed.listBox;
  scheme[ColourScheme::kFormBrush] = designed.formBrush;
  return {scheme[ColourScheme::kBackground], {}, {}};
}

}  // namespace

std::string schemeFilePath(const std::string& programFolder) { return programFolder + kSchemeFile; }

std::optional<std::string> schemeListEntry(std::string_view line) {
  const auto at = line.find(kSchemeMark);
  if (at == std::string_view::npos) return std::nullopt;
  return std::string(line.substr(0, at));
}

std::vector<std::string> schemeList(const std::string& schemeFile) {
  std::vector<std::string> names;
  LineReader reader(schemeFile);
  while (auto line = reader.next()) {
    if (auto entry = schemeListEntry(*line)) names.push_back(std::move(*entry));
  }
  return names;
}

std::optional<int> parseColourLine(std::string_view line) {
  if (line.empty()) return std::nullopt;
  std::array<int, 3> fields{};
  for (int& field : fields) {
    const auto end = line.find(';');
    field = colourField(line.substr(0, end));
    if (end == std::string_view::npos) break;
    line.remove_prefix(end + 1);
  }
  return rgb(fields[0], fields[1], fields[2]);
}

SchemeSearch readScheme(const NextLine& next, const std::string& name,
                        std::array<int, ColourScheme::kColours>& colours) {
  for (;;) {
    const auto line = next();
    if (!line) return SchemeSearch::NotFound;
    if (*line == name) break;
  }
  for (int index = 0; index < ColourScheme::kFileColours; ++index) {
    const auto line = next();
    if (!line) return SchemeSearch::Stopped;
    const auto colour = parseColourLine(*line);
    if (!colour) return SchemeSearch::Stopped;
    colours[static_cast<std::size_t>(index)] = *colour;
  }
  return SchemeSearch::Complete;
}

SchemeSearch readSchemeText(std::string_view fileText, const std::string& name,
                            std::array<int, ColourScheme::kColours>& colours) {
  const auto next = [&fileText]() -> std::optional<std::string> {
    if (fileText.empty()) return std::nullopt;
    const auto end = fileText.find('\n');
    std::string_view line = fileText.substr(0, end);
    fileText.remove_prefix(end == std::string_view::npos ? fileText.size() : end + 1);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    return std::string(line);
  };
  return readScheme(next, name, colours);
}

SchemeLoad loadOptionsScheme(const std::string& schemeFile, const std::string& name, ColourScheme& scheme,
                             const DesignedColours& designed) {
  return loadScheme(schemeFile, name, scheme, designed, "Color Scheme: ", "default.col");
}

SchemeLoad loadStartupScheme(const std::string& schemeFile, const std::string& name, ColourScheme& scheme,
                             const DesignedColours& designed) {
  return loadScheme(schemeFile, name, scheme, designed, "Colour Scheme: ", "xp.col");
}

SchemePaint prepareSchemePaint(ColourScheme& scheme) {
  int& colour13 = scheme[ColourScheme::kButtonOverride];
  if (colour13 == 0) colour13 = scheme[ColourScheme::kButtons];
  if (colour13 >= 1) scheme[ColourScheme::kButtons] = colour13;
  SchemePaint paint;
  paint.background = scheme[ColourScheme::kBackground];
  paint.buttons = scheme[ColourScheme::kButtons];
  if (paintsFormBrush(scheme.name)) paint.formBrush = scheme[ColourScheme::kFormBrush];
  return paint;
}

bool paintsFormBrush(std::string_view schemeName) { return toUpper(schemeName).find("DEFAULT") == std::string::npos; }

}  // namespace combwise

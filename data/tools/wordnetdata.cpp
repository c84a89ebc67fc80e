// Parsing of WordNet's index, data and exception files.
#include "data/tools/wordnetdata.h"

#include <algorithm>
#include <charconv>

#include "data/tools/textio.h"

namespace combwise::wordconv {

namespace {

// Hands out the blank-separated fields of a line one by one.
class Fields {
 public:
  explicit Fields(std::string_view line) : m_rest(line) {}

  std::optional<std::string_view> next() {
    const auto start = m_rest.find_first_not_of(' ');
    if (start == std::string_view::npos) return std::nullopt;
    m_rest.remove_prefix(start);
    const auto end = m_rest.find(' ');
    const std::string_view field = m_rest.substr(0, end);
    m_rest.remove_prefix(end == std::string_view::npos ? m_rest.size() : end);
    return field;
  }

  std::optional<std::uint32_t> number(int base = 10) {
    const auto field = next();
    if (!field) return std::nullopt;
    std::uint32_t value = 0;
    const auto [end, error] = std::from_chars(field->data(), field->data() + field->size(), value, base);
    if (error != std::errc() || end != field->data() + field->size()) return std::nullopt;
    return value;
  }

  std::string_view rest() const { return m_rest; }

 private:
  std::string_view m_rest;
};

std::optional<PartOfSpeech> partFromLetter(std::string_view letter) {
  if (letter == "n") return PartOfSpeech::Noun;
  if (letter == "v") return PartOfSpeech::Verb;
  if (letter == "a" || letter == "s") return PartOfSpeech::Adjective;  // "s": adjective satellite
  if (letter == "r") return PartOfSpeech::Adverb;
  return std::nullopt;
}

std::size_t slot(PartOfSpeech part) { return static_cast<std::size_t>(part); }

// Calls `visit` for every line of a text that is not part of the licence.
template <typename Visit>
void forEachRecord(std::string_view text, Visit visit) {
  while (!text.empty()) {
    const auto end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    if (!line.empty() && line.front() != ' ') visit(line);
  }
}

}  // namespace

std::string_view fileSuffix(PartOfSpeech part) {
  switch (part) {
    case PartOfSpeech::Noun:
      return "noun";
    case PartOfSpeech::Verb:
      return "verb";
    case PartOfSpeech::Adjective:
      return "adj";
    case PartOfSpeech::Adverb:
      return "adv";
  }
  return {};
}

std::optional<IndexEntry> parseIndexLine(std::string_view line, PartOfSpeech part) {
  Fields fields(line);
  if (!fields.next() || !fields.next()) return std::nullopt;  // lemma and part of speech
  const auto synsetCount = fields.number();
  const auto pointerCount = fields.number();
  if (!synsetCount || !pointerCount) return std::nullopt;
  for (std::uint32_t i = 0; i < *pointerCount; ++i) {
    if (!fields.next()) return std::nullopt;
  }
  const auto senseCount = fields.number();
  const auto taggedCount = fields.number();
  if (!senseCount || !taggedCount) return std::nullopt;
  IndexEntry entry;
  entry.part = part;
  entry.taggedSenses = static_cast<int>(*taggedCount);
  for (std::uint32_t i = 0; i < *synsetCount; ++i) {
    const auto offset = fields.number();
    if (!offset) return std::nullopt;
    entry.offsets.push_back(*offset);
  }
  return entry;
}

std::optional<Synset> parseSynsetLine(std::string_view line) {
  const auto bar = line.find(" | ");
  Fields fields(line.substr(0, bar));
  if (!fields.number() || !fields.next() || !fields.next()) return std::nullopt;  // offset, lexicographer file, type
  const auto wordCount = fields.number(16);
  if (!wordCount) return std::nullopt;
  Synset synset;
  for (std::uint32_t i = 0; i < *wordCount; ++i) {
    const auto lemma = fields.next();
    if (!lemma || !fields.next()) return std::nullopt;  // lemma and its lexical id
    // Adjectives may carry a position marker: "galore(ip)".
    synset.lemmas.emplace_back(lemma->substr(0, lemma->find('(')));
  }
  const auto pointerCount = fields.number();
  if (!pointerCount) return std::nullopt;
  for (std::uint32_t i = 0; i < *pointerCount; ++i) {
    const auto symbol = fields.next();
    const auto offset = fields.number();
    const auto letter = fields.next();
    const auto sourceTarget = fields.number(16);
    const auto part = letter ? partFromLetter(*letter) : std::nullopt;
    if (!symbol || !offset || !part || !sourceTarget) return std::nullopt;
    synset.pointers.push_back(Pointer{std::string(*symbol), *offset, *part, static_cast<int>(*sourceTarget >> 8)});
  }
  if (bar != std::string_view::npos) {
    std::string_view gloss = line.substr(bar + 3);
    while (!gloss.empty() && gloss.back() == ' ') gloss.remove_suffix(1);
    synset.gloss = gloss;
  }
  return synset;
}

std::vector<std::string> licenceLines(std::string_view fileText) {
  std::vector<std::string> lines;
  while (fileText.starts_with(' ')) {
    const auto end = fileText.find('\n');
    std::string_view line = fileText.substr(0, end);
    fileText.remove_prefix(end == std::string_view::npos ? fileText.size() : end + 1);
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    line.remove_prefix(std::min(line.find_first_not_of("0123456789"), line.size()));
    if (line.starts_with(' ')) line.remove_prefix(1);
    while (!line.empty() && (line.back() == ' ' || line.back() == '\r')) line.remove_suffix(1);
    lines.emplace_back(line);
  }
  return lines;
}

void WordNetData::addPart(PartOfSpeech part, std::string indexText, std::string dataText) {
  const auto& index = *m_texts.emplace_back(std::make_unique<const std::string>(std::move(indexText)));
  forEachRecord(index, [&](std::string_view line) { m_index[line.substr(0, line.find(' '))][slot(part)] = line; });
  const auto& data = *m_texts.emplace_back(std::make_unique<const std::string>(std::move(dataText)));
  auto& lines = m_data[slot(part)];
  forEachRecord(data, [&](std::string_view line) {
    if (const auto offset = Fields(line).number()) lines[*offset] = line;
  });
}

void WordNetData::addExceptions(std::string_view text) {
  forEachRecord(text, [&](std::string_view line) {
    Fields fields(line);
    const auto inflected = fields.next();
    if (!inflected) return;
    while (const auto base = fields.next()) {
      m_irregular[std::string(*base)].emplace_back(*inflected);
      m_irregular[std::string(*inflected)].emplace_back(*base);
    }
  });
}

std::vector<IndexEntry> WordNetData::entries(std::string_view lemma) const {
  std::vector<IndexEntry> result;
  const auto found = m_index.find(lemma);
  if (found == m_index.end()) return result;
  for (const PartOfSpeech part : kPartsOfSpeech) {
    const std::string_view line = found->second[slot(part)];
    if (line.empty()) continue;
    if (auto entry = parseIndexLine(line, part)) result.push_back(std::move(*entry));
  }
  return result;
}

std::optional<Synset> WordNetData::synset(PartOfSpeech part, std::uint32_t offset) const {
  const auto& lines = m_data[slot(part)];
  const auto found = lines.find(offset);
  if (found == lines.end()) return std::nullopt;
  return parseSynsetLine(found->second);
}

std::vector<std::string> WordNetData::irregularForms(std::string_view lemma) const {
  const auto found = m_irregular.find(std::string(lemma));
  return found == m_irregular.end() ? std::vector<std::string>{} : found->second;
}

std::optional<WordNetData> loadWordNet(const std::string& folder, std::string& error) {
  WordNetData wordnet;
  const auto read = [&](const std::string& name) {
    auto text = readWholeFile(folder + "/" + name);
    if (!text) error = "cannot read " + folder + "/" + name;
    return text;
  };
  for (const PartOfSpeech part : kPartsOfSpeech) {
    const std::string suffix(fileSuffix(part));
    auto index = read("index." + suffix);
    if (!index) return std::nullopt;
    auto data = read("data." + suffix);
    if (!data) return std::nullopt;
    const auto exceptions = read(suffix + ".exc");
    if (!exceptions) return std::nullopt;
    wordnet.addPart(part, std::move(*index), std::move(*data));
    wordnet.addExceptions(*exceptions);
  }
  return wordnet;
}

}  // namespace combwise::wordconv

// WordNet 3.0 database files held in memory: per part of speech an index
// file (a lemma's senses as synset offsets, most common first) and a data
// file (one synset a line: lemmas, pointers, gloss), plus the exception
// lists of irregular forms. Only what the word converter asks for is parsed.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace combwise::wordconv {

enum class PartOfSpeech { Noun, Verb, Adjective, Adverb };

constexpr std::array<PartOfSpeech, 4> kPartsOfSpeech = {PartOfSpeech::Noun, PartOfSpeech::Verb, PartOfSpeech::Adjective,
                                                        PartOfSpeech::Adverb};

// The file name suffix WordNet uses: "noun", "verb", "adj", "adv".
std::string_view fileSuffix(PartOfSpeech part);

// One line of an index file.
struct IndexEntry {
  PartOfSpeech part = PartOfSpeech::Noun;
  int taggedSenses = 0;                // senses with frequency counts from tagged texts
  std::vector<std::uint32_t> offsets;  // synsets in sense order
};

struct Pointer {
  std::string symbol;  // "@i" instance hypernym, ";u" usage domain, ...
  std::uint32_t offset = 0;
  PartOfSpeech part = PartOfSpeech::Noun;
  int sourceWord = 0;  // 1-based lemma the pointer belongs to; 0 for the whole synset
};

struct Synset {
  std::vector<std::string> lemmas;  // as written ("Crane", "light_year"), adjective markers removed
  std::vector<Pointer> pointers;
  std::string gloss;  // the raw text after "|"
};

std::optional<IndexEntry> parseIndexLine(std::string_view line, PartOfSpeech part);
std::optional<Synset> parseSynsetLine(std::string_view line);

// The licence every WordNet database file starts with (its lines carry a
// blank and a line number in front), without those numbers.
std::vector<std::string> licenceLines(std::string_view fileText);

class WordNetData {
 public:
  WordNetData() = default;
  WordNetData(WordNetData&&) = default;
  WordNetData& operator=(WordNetData&&) = default;

  // Takes the text of one part of speech's index and data file. Lines that
  // start with a blank (the licence) are skipped.
  void addPart(PartOfSpeech part, std::string indexText, std::string dataText);
  // Takes an exception list: lines of an inflected form and its bases.
  void addExceptions(std::string_view text);

  // The index lines of a lemma (lower case), one per part of speech it has.
  std::vector<IndexEntry> entries(std::string_view lemma) const;
  // True when the lemma (lower case, "_" for blanks) has an index line.
  bool hasLemma(std::string_view lemma) const { return m_index.contains(lemma); }
  std::optional<Synset> synset(PartOfSpeech part, std::uint32_t offset) const;
  // Irregular forms of a lemma and the bases it is an irregular form of
  // ("run" gives "ran"; "mice" gives "mouse").
  std::vector<std::string> irregularForms(std::string_view lemma) const;

 private:
  using PartLines = std::array<std::string_view, kPartsOfSpeech.size()>;
  // Views point into these texts, which never move once taken.
  std::vector<std::unique_ptr<const std::string>> m_texts;
  std::unordered_map<std::string_view, PartLines> m_index;
  std::array<std::unordered_map<std::uint32_t, std::string_view>, kPartsOfSpeech.size()> m_data;
  std::unordered_map<std::string, std::vector<std::string>> m_irregular;
};

// Reads index.*, data.* and *.exc of every part of speech from a folder.
// On failure the error names the file that could not be read.
std::optional<WordNetData> loadWordNet(const std::string& folder, std::string& error);

}  // namespace combwise::wordconv

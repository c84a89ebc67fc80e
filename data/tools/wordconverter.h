// Makes the game's dictionary and meanings file from a word list and
// WordNet: a word of 3 to 6 letters stays when WordNet gives it at least one
// clue that is fit to print and does not give the answer away.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "data/tools/wordnetdata.h"

namespace combwise::wordconv {

constexpr int kShortestWord = 3;
constexpr int kLongestWord = 6;
constexpr int kDefaultMaxClues = 3;

struct Sense {
  PartOfSpeech part = PartOfSpeech::Noun;
  std::uint32_t offset = 0;
};

struct Conversion {
  std::vector<std::string> dictionary;  // upper-case words in alphabetical order
  std::vector<std::string> meanings;    // "WORD:clue" lines in binary order
};

struct LengthCounts {
  std::array<int, kLongestWord + 1> words{};     // indexed by word length
  std::array<int, kLongestWord + 1> meanings{};  // meaning lines, by word length
  int totalWords() const;
  int totalMeanings() const;
};

// The plain lower-case entries of a word list of 3 to 6 letters a to z,
// sorted and without repeats; proper names, possessives and accented words
// are not puzzle words.
std::vector<std::string> candidateWords(std::string_view wordListText);

// A word's senses over all its parts of speech, most common first.
std::vector<Sense> senseOrder(const std::vector<IndexEntry>& entries);

// The clue a sense gives for `word` (lower case), or an empty text when the
// sense is unfit: an instance (one particular person, place or work), a
// proper name or abbreviation, an offensive or abbreviation usage, an
// offensive gloss, or a gloss that shows one of `answerForms`.
std::string clueFor(std::string_view word, const Synset& synset, const WordNetData& wordnet,
                    const std::vector<std::string>& answerForms);

// Up to `maxClues` distinct clues per candidate word in sense order.
Conversion convertWords(const std::vector<std::string>& candidates, const WordNetData& wordnet,
                        int maxClues = kDefaultMaxClues);

LengthCounts countByLength(const Conversion& conversion);
// A small table of the counts per length and in total.
std::string countReport(const LengthCounts& counts);

}  // namespace combwise::wordconv

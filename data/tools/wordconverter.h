// Makes the game's dictionary and meanings file from a word list and
// WordNet: a word of 3 to 6 letters stays when WordNet gives it at least one
// clue that is fit to print and does not give the answer away.
#pragma once

#include <array>
#include <optional>
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

// Why a sense gives no clue. A sense is counted under the first that
// applies, in this order.
enum class SenseDrop {
  Instance,        // one particular person, place or work
  ProperName,      // the lemma is written with capitals: a name or abbreviation
  UsageDomain,     // WordNet files it under obscenity, disparagement, ethnic slur, abbreviation, ...
  OffensiveGloss,  // the gloss calls itself offensive, vulgar, obscene, disparaging, a slur
  AdultGloss,      // the gloss is about sex
  ShowsForm,       // the gloss holds the answer or an inflected form of it
  SharesRoot,      // the gloss holds a relative of the answer: abuser, abuses
  Compound,        // the gloss holds the answer joined to another word: sandpaper
  NoDefinition,    // nothing is left of the gloss once its examples are gone
};
constexpr std::size_t kSenseDropKinds = 9;
std::string_view senseDropName(SenseDrop drop);

// A sense's clue, or why it has none.
struct SenseVerdict {
  std::string clue;
  std::optional<SenseDrop> drop;
};

struct ConversionCounts {
  int candidates = 0;                          // plain words of 3 to 6 letters in the word list
  int unknown = 0;                             // of them, not in WordNet
  int crude = 0;                               // on the list of crude words
  int withoutClue = 0;                         // left without a single usable sense
  int sensesJudged = 0;                        // senses of the remaining words
  std::array<int, kSenseDropKinds> dropped{};  // senses dropped, by SenseDrop
};

struct Conversion {
  std::vector<std::string> dictionary;  // upper-case words in alphabetical order
  std::vector<std::string> meanings;    // "WORD:clue" lines in binary order
  ConversionCounts counts;
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

// The clue a sense gives for `word` (lower case), or the reason it gives
// none. `answerForms` are the word's inflected forms (obviousForms and the
// irregular ones).
SenseVerdict judgeSense(std::string_view word, const Synset& synset, const WordNetData& wordnet,
                        const std::vector<std::string>& answerForms);

// The words of a list of crude words: one word a line, lower case, followed
// by a note on why it is there; blank lines and lines starting with "#" are
// comments. Nothing, with `error` naming the line, when a line has another
// form.
std::optional<std::vector<std::string>> parseCrudeWords(std::string_view text, std::string& error);

// Up to `maxClues` distinct clues per candidate word in sense order; words
// of `crudeWords` are left out whatever their senses.
Conversion convertWords(const std::vector<std::string>& candidates, const WordNetData& wordnet,
                        const std::vector<std::string>& crudeWords = {}, int maxClues = kDefaultMaxClues);

// What was left out and why, for the build log.
std::string dropReport(const ConversionCounts& counts);

LengthCounts countByLength(const Conversion& conversion);
// A small table of the counts per length and in total.
std::string countReport(const LengthCounts& counts);

}  // namespace combwise::wordconv

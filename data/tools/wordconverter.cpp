// The conversion rules: which words, which senses, in what order.
#include "data/tools/wordconverter.h"

#include <algorithm>
#include <cstdio>
#include <numeric>
#include <tuple>

#include "data/tools/glossrules.h"

namespace combwise::wordconv {

namespace {

char upper(char c) { return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c; }
char lower(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

bool equalsIgnoringCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() &&
         std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return lower(x) == lower(y); });
}

bool hasCapital(std::string_view text) {
  return std::any_of(text.begin(), text.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

// Usage domains whose members make no clue: insults and shortenings.
bool isBannedDomain(const Synset& domain) {
  constexpr std::array<std::string_view, 9> kBanned = {"disparagement", "derogation",   "ethnic_slur",
                                                       "obscenity",     "vulgarism",    "dirty_word",
                                                       "smut",          "abbreviation", "acronym"};
  return std::any_of(domain.lemmas.begin(), domain.lemmas.end(), [&](const std::string& lemma) {
    std::string lowered(lemma);
    std::transform(lowered.begin(), lowered.end(), lowered.begin(), lower);
    return std::find(kBanned.begin(), kBanned.end(), lowered) != kBanned.end();
  });
}

bool isPlainWord(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

}  // namespace

int LengthCounts::totalWords() const { return std::accumulate(words.begin(), words.end(), 0); }
int LengthCounts::totalMeanings() const { return std::accumulate(meanings.begin(), meanings.end(), 0); }

std::vector<std::string> candidateWords(std::string_view wordListText) {
  std::vector<std::string> words;
  while (!wordListText.empty()) {
    const auto end = wordListText.find('\n');
    std::string_view line = wordListText.substr(0, end);
    wordListText.remove_prefix(end == std::string_view::npos ? wordListText.size() : end + 1);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    const bool plain = std::all_of(line.begin(), line.end(), [](char c) { return c >= 'a' && c <= 'z'; });
    const auto length = static_cast<int>(line.size());
    if (plain && length >= kShortestWord && length <= kLongestWord) words.emplace_back(line);
  }
  std::sort(words.begin(), words.end());
  words.erase(std::unique(words.begin(), words.end()), words.end());
  return words;
}

// WordNet orders the senses of one part of speech most common first and
// counts how many of them were met in its sense-tagged texts. Senses met
// there come before those never met; within each group they are taken in
// rounds (every part's first sense, then every part's second, ...), and
// within a round the part with more tagged senses goes first (nouns, verbs,
// adjectives, adverbs on a tie). So a word common as both noun and verb
// offers a clue for each before the rarer senses of either.
std::vector<Sense> senseOrder(const std::vector<IndexEntry>& entries) {
  std::vector<std::size_t> byTagged(entries.size());
  std::iota(byTagged.begin(), byTagged.end(), std::size_t{0});
  std::stable_sort(byTagged.begin(), byTagged.end(), [&](std::size_t a, std::size_t b) {
    const auto key = [&](std::size_t i) {
      return std::make_tuple(-entries[i].taggedSenses, static_cast<int>(entries[i].part));
    };
    return key(a) < key(b);
  });
  std::vector<std::size_t> rank(entries.size());
  for (std::size_t r = 0; r < byTagged.size(); ++r) rank[byTagged[r]] = r;

  struct Ranked {
    std::tuple<bool, std::size_t, std::size_t> key;  // untagged, position, part's rank
    Sense sense;
  };
  std::vector<Ranked> ranked;
  for (std::size_t e = 0; e < entries.size(); ++e) {
    const IndexEntry& entry = entries[e];
    for (std::size_t i = 0; i < entry.offsets.size(); ++i) {
      const bool untagged = static_cast<int>(i) >= entry.taggedSenses;
      ranked.push_back({{untagged, i, rank[e]}, Sense{entry.part, entry.offsets[i]}});
    }
  }
  std::sort(ranked.begin(), ranked.end(), [](const Ranked& a, const Ranked& b) { return a.key < b.key; });
  std::vector<Sense> senses;
  senses.reserve(ranked.size());
  for (const Ranked& r : ranked) senses.push_back(r.sense);
  return senses;
}

std::string_view senseDropName(SenseDrop drop) {
  switch (drop) {
    case SenseDrop::Instance:
      return "a particular person, place or work";
    case SenseDrop::ProperName:
      return "a proper name or abbreviation";
    case SenseDrop::UsageDomain:
      return "offensive or abbreviation usage";
    case SenseDrop::OffensiveGloss:
      return "gloss marked offensive";
    case SenseDrop::AdultGloss:
      return "gloss about sex";
    case SenseDrop::ShowsForm:
      return "gloss shows the word";
    case SenseDrop::SharesRoot:
      return "gloss shows a relative";
    case SenseDrop::Compound:
      return "gloss shows a compound";
    case SenseDrop::NoDefinition:
      return "gloss without a definition";
  }
  return {};
}

SenseVerdict judgeSense(std::string_view word, const Synset& synset, const WordNetData& wordnet,
                        const std::vector<std::string>& answerForms) {
  const auto dropped = [](SenseDrop drop) { return SenseVerdict{{}, drop}; };
  const auto lemma = std::find_if(synset.lemmas.begin(), synset.lemmas.end(),
                                  [&](const std::string& l) { return equalsIgnoringCase(l, word); });
  const bool instance = std::any_of(synset.pointers.begin(), synset.pointers.end(),
                                    [](const Pointer& pointer) { return pointer.symbol == "@i"; });
  if (instance) return dropped(SenseDrop::Instance);
  // "Crane" the poet or "DNA": the lower-case word is another word.
  if (lemma == synset.lemmas.end() || hasCapital(*lemma)) return dropped(SenseDrop::ProperName);
  const int lemmaNumber = static_cast<int>(lemma - synset.lemmas.begin()) + 1;

  for (const Pointer& pointer : synset.pointers) {
    if (pointer.symbol != ";u") continue;
    if (pointer.sourceWord != 0 && pointer.sourceWord != lemmaNumber) continue;
    const auto domain = wordnet.synset(pointer.part, pointer.offset);
    if (domain && isBannedDomain(*domain)) return dropped(SenseDrop::UsageDomain);
  }

  std::string clue = cleanGloss(synset.gloss);
  if (clue.empty()) return dropped(SenseDrop::NoDefinition);
  if (hasOffensiveMarker(clue)) return dropped(SenseDrop::OffensiveGloss);
  if (isAdultGloss(clue)) return dropped(SenseDrop::AdultGloss);
  if (showsAnyForm(clue, answerForms)) return dropped(SenseDrop::ShowsForm);
  const std::vector<std::string> glossWords = lowerWords(clue);
  if (std::any_of(glossWords.begin(), glossWords.end(),
                  [&](const std::string& other) { return sharesRoot(word, other); }))
    return dropped(SenseDrop::SharesRoot);
  const auto isWord = [&](std::string_view part) { return wordnet.hasLemma(part); };
  if (std::any_of(glossWords.begin(), glossWords.end(),
                  [&](const std::string& other) { return isCompoundOf(word, other, isWord); }))
    return dropped(SenseDrop::Compound);
  return {std::move(clue), std::nullopt};
}

std::optional<std::vector<std::string>> parseCrudeWords(std::string_view text, std::string& error) {
  std::vector<std::string> words;
  int lineNumber = 0;
  while (!text.empty()) {
    const auto end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    ++lineNumber;
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    if (line.find_first_not_of(" \t") == std::string_view::npos || line.front() == '#') continue;
    const auto blank = line.find_first_of(" \t");
    const std::string_view word = line.substr(0, blank);
    const bool hasNote =
        blank != std::string_view::npos && line.find_first_not_of(" \t", blank) != std::string_view::npos;
    if (!isPlainWord(word) || !hasNote) {
      error = "line " + std::to_string(lineNumber) + " is not a lower-case word followed by a note";
      return std::nullopt;
    }
    words.emplace_back(word);
  }
  std::sort(words.begin(), words.end());
  return words;
}

Conversion convertWords(const std::vector<std::string>& candidates, const WordNetData& wordnet,
                        const std::vector<std::string>& crudeWords, int maxClues) {
  Conversion result;
  ConversionCounts& counts = result.counts;
  for (const std::string& word : candidates) {
    ++counts.candidates;
    const std::vector<IndexEntry> entries = wordnet.entries(word);
    if (entries.empty()) {
      ++counts.unknown;
      continue;
    }
    if (std::find(crudeWords.begin(), crudeWords.end(), word) != crudeWords.end()) {
      ++counts.crude;
      continue;
    }
    std::vector<std::string> forms = obviousForms(word);
    for (std::string& form : wordnet.irregularForms(word)) forms.push_back(std::move(form));

    // Every sense is judged, so the counts do not depend on how many clues
    // a word keeps.
    std::vector<std::string> clues;
    for (const Sense& sense : senseOrder(entries)) {
      const auto synset = wordnet.synset(sense.part, sense.offset);
      if (!synset) continue;
      ++counts.sensesJudged;
      SenseVerdict verdict = judgeSense(word, *synset, wordnet, forms);
      if (verdict.drop) {
        ++counts.dropped[static_cast<std::size_t>(*verdict.drop)];
        continue;
      }
      if (static_cast<int>(clues.size()) < maxClues &&
          std::find(clues.begin(), clues.end(), verdict.clue) == clues.end())
        clues.push_back(std::move(verdict.clue));
    }
    if (clues.empty()) {
      ++counts.withoutClue;
      continue;
    }

    std::string upperWord(word);
    std::transform(upperWord.begin(), upperWord.end(), upperWord.begin(), upper);
    for (const std::string& clue : clues) result.meanings.push_back(upperWord + ":" + clue);
    result.dictionary.push_back(std::move(upperWord));
  }
  // The game finds a word's lines by a binary search on "WORD:"; since ":"
  // sorts before every letter, sorting whole lines keeps a word's lines
  // together ("CAT:..." before "CATS:...").
  std::sort(result.meanings.begin(), result.meanings.end());
  return result;
}

std::string dropReport(const ConversionCounts& counts) {
  std::string report;
  char row[96];
  const auto add = [&](std::string_view what, int count) {
    std::snprintf(row, sizeof row, "%-46.*s %6d\n", static_cast<int>(what.size()), what.data(), count);
    report += row;
  };
  add("candidate words", counts.candidates);
  add("  not in WordNet", counts.unknown);
  add("  on the list of crude words", counts.crude);
  add("  left without a usable sense", counts.withoutClue);
  add("senses judged", counts.sensesJudged);
  for (std::size_t kind = 0; kind < kSenseDropKinds; ++kind) {
    add("  dropped: " + std::string(senseDropName(static_cast<SenseDrop>(kind))), counts.dropped[kind]);
  }
  return report;
}

LengthCounts countByLength(const Conversion& conversion) {
  LengthCounts counts;
  for (const std::string& word : conversion.dictionary) {
    if (word.size() < counts.words.size()) ++counts.words[word.size()];
  }
  for (const std::string& line : conversion.meanings) {
    const auto colon = line.find(':');
    if (colon < counts.meanings.size()) ++counts.meanings[colon];
  }
  return counts;
}

std::string countReport(const LengthCounts& counts) {
  std::string report = "letters     words  meanings\n";
  char row[64];
  for (int length = kShortestWord; length <= kLongestWord; ++length) {
    std::snprintf(row, sizeof row, "%7d %9d %9d\n", length, counts.words[length], counts.meanings[length]);
    report += row;
  }
  std::snprintf(row, sizeof row, "%7s %9d %9d\n", "total", counts.totalWords(), counts.totalMeanings());
  report += row;
  return report;
}

}  // namespace combwise::wordconv

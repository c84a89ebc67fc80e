// Gloss cleaning, the offensive-sense markers and the answer's obvious forms.
#include "data/tools/glossrules.h"

#include <algorithm>
#include <array>

namespace combwise::wordconv {

namespace {

bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
char lower(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }
bool isVowel(char c) { return c == 'a' || c == 'e' || c == 'i' || c == 'o' || c == 'u'; }

std::string_view trimSeparators(std::string_view text) {
  constexpr std::string_view kJunk = " \t;,:";
  const auto first = text.find_first_not_of(kJunk);
  if (first == std::string_view::npos) return {};
  const auto last = text.find_last_not_of(kJunk);
  return text.substr(first, last - first + 1);
}

// Splits at the ";" that stand outside double quotes: examples may hold one.
std::vector<std::string_view> splitParts(std::string_view gloss) {
  std::vector<std::string_view> parts;
  bool quoted = false;
  std::size_t start = 0;
  for (std::size_t i = 0; i < gloss.size(); ++i) {
    if (gloss[i] == '"') quoted = !quoted;
    if (gloss[i] == ';' && !quoted) {
      parts.push_back(gloss.substr(start, i - start));
      start = i + 1;
    }
  }
  parts.push_back(gloss.substr(start));
  return parts;
}

// A few glosses run an example on after ":" or "," instead of ";".
std::string_view cutRunOnExample(std::string_view part) {
  for (std::size_t i = 0; i < part.size(); ++i) {
    if (part[i] != ':' && part[i] != ',') continue;
    const auto next = part.find_first_not_of(' ', i + 1);
    if (next != std::string_view::npos && part[next] == '"') return part.substr(0, i);
  }
  return part;
}

void addForm(std::vector<std::string>& forms, std::string form) {
  if (form.size() < 3) return;  // two-letter "bases" such as "it" of "its" are other words
  if (std::find(forms.begin(), forms.end(), form) == forms.end()) forms.push_back(std::move(form));
}

// Endings that make relatives of a word: inflections and the common
// derivational suffixes. Every ending that fits is taken off in turn, so
// "admiration" gives "admir" (-ation) as well as "admirat" (-ion).
constexpr std::string_view kEndings[] = {
    "ations", "ically", "ively", "iness", "ation", "ition", "tions", "sions", "ments", "ivity", "ities",
    "ously",  "iest",   "ions",  "tion",  "sion",  "ment",  "ness",  "ists",  "isms",  "able",  "ably",
    "ible",   "ally",   "ical",  "ance",  "ence",  "ency",  "ancy",  "ship",  "hood",  "less",  "ants",
    "ing",    "ers",    "ors",   "est",   "ies",   "ied",   "ier",   "ily",   "ion",   "ive",   "ist",
    "ism",    "ity",    "ous",   "ful",   "als",   "ial",   "ics",   "ant",   "ent",   "age",   "ure",
    "ery",    "ish",    "ize",   "ise",   "ess",   "let",   "es",    "ed",    "er",    "or",    "ly",
    "al",     "ic",     "ee",    "en",    "et",    "y",     "s"};

void addUnique(std::vector<std::string>& list, std::string item) {
  if (std::find(list.begin(), list.end(), item) == list.end()) list.push_back(std::move(item));
}

// What is left of `w` after taking off one ending; "ies", "ied", "ier",
// "iest", "ily" and "iness" leave the "y" they replaced ("happiness" gives
// "happy"). With `bareE`, a final "e" counts as an ending too.
void addStripped(std::vector<std::string>& roots, const std::string& w, bool bareE) {
  const auto strip = [&](std::string_view ending) {
    if (w.size() <= ending.size() || !w.ends_with(ending)) return;
    std::string root = w.substr(0, w.size() - ending.size());
    if (ending.front() == 'i' && (ending == "ies" || ending == "ied" || ending == "ier" || ending == "iest" ||
                                  ending == "ily" || ending == "iness"))
      root += 'y';
    // "wiper" and "wipes" both come from "wipe".
    const bool vowelEnding = std::string_view("aeiou").find(ending.front()) != std::string_view::npos;
    if (vowelEnding && root.size() >= 3 && !isVowel(root.back()) && root.back() != 'y') addUnique(roots, root + 'e');
    addUnique(roots, std::move(root));
  };
  for (const std::string_view ending : kEndings) strip(ending);
  if (bareE) strip("e");
}

// The word, what is left after taking off one or two endings, and the
// spelling changes that join relatives: y and i (happy, happiness), c and s
// (advice, advise), d and s (decide, decision), a dropped final e.
std::vector<std::string> roots(std::string_view word, bool bareE) {
  std::vector<std::string> result{std::string(word)};
  addStripped(result, std::string(word), bareE);
  const std::size_t once = result.size();
  for (std::size_t i = 1; i < once; ++i) addStripped(result, std::string(result[i]), bareE);
  const std::size_t stripped = result.size();
  for (std::size_t i = 0; i < stripped; ++i) {
    const std::string root = result[i];
    if (root.size() < 2) continue;
    const std::string butLast = root.substr(0, root.size() - 1);
    switch (root.back()) {
      case 'y':
        addUnique(result, butLast + 'i');
        break;
      case 'i':
        addUnique(result, butLast + 'y');
        break;
      case 'c':
      case 'd':
        addUnique(result, butLast + 's');
        break;
      case 'e':
        if (bareE) addUnique(result, butLast);
        break;
      default:
        break;
    }
  }
  return result;
}

bool contains(const std::vector<std::string>& list, std::string_view item) {
  return std::find(list.begin(), list.end(), item) != list.end();
}

}  // namespace

std::vector<std::string> lowerWords(std::string_view text) {
  std::vector<std::string> words;
  std::string word;
  for (const char c : text) {
    if (isLetter(c)) {
      word += lower(c);
    } else if (!word.empty()) {
      words.push_back(std::move(word));
      word.clear();
    }
  }
  if (!word.empty()) words.push_back(std::move(word));
  return words;
}

bool sharesRoot(std::string_view word, std::string_view other) {
  // A root that counts has three letters or more, of which at least the
  // first two begin its word: most pairs end here.
  if (word.size() < 3 || other.size() < 3 || word.substr(0, 2) != other.substr(0, 2)) return false;
  if (word == other) return true;
  // A longer word that begins with the whole answer is nearly always built
  // on it: "weight" for weigh, "laughter", "kingdom", "poetry".
  if (word.size() >= 4 && other.size() > word.size() && other.starts_with(word) && other.substr(word.size()) != "e")
    return true;
  const std::vector<std::string> wordRoots = roots(word, true);
  const std::vector<std::string> otherRoots = roots(other, true);
  for (const std::string& root : wordRoots) {
    if (!contains(otherRoots, root)) continue;
    // A three-letter root is too often a chance likeness ("rats" and
    // "ration"), unless it is the word itself or both words are long enough
    // to be built on it ("active" and "action").
    if (root.size() < 3 || (root.size() < 4 && root != word && (word.size() < 6 || other.size() < 6))) continue;
    // "plan" is no relative of "plane", nor "car" of "care".
    if (root == other && !contains(roots(word, false), root)) continue;
    if (root == word && !contains(roots(other, false), root)) continue;
    return true;
  }
  return false;
}

bool isCompoundOf(std::string_view word, std::string_view other, const std::function<bool(std::string_view)>& isWord) {
  if (word.size() < 4 || other.size() < word.size() + 2) return false;
  const auto known = [&](std::string_view part) {
    if (part.size() < 3) return false;
    if (isWord(part)) return true;
    return part.size() > 3 && part.ends_with('s') && isWord(part.substr(0, part.size() - 1));
  };
  // The word or one of its roots: "railway" shows "rails" and "paperlike"
  // shows "papery".
  for (const std::string& base : roots(word, false)) {
    if (base.size() < 4) continue;
    if (other.starts_with(base) && known(other.substr(base.size()))) return true;
    if (other.ends_with(base) && known(other.substr(0, other.size() - base.size()))) return true;
  }
  return false;
}

std::string cleanGloss(std::string_view gloss) {
  std::string kept;
  for (std::string_view part : splitParts(gloss)) {
    part = trimSeparators(part);
    if (part.empty() || part.front() == '"') continue;
    part = trimSeparators(cutRunOnExample(part));
    if (part.empty()) continue;
    if (!kept.empty()) kept += "; ";
    kept += part;
  }
  std::string clue;
  for (const char c : kept) {
    if (c == '"' || c < ' ' || c > '~') continue;
    if (c == ' ' && (clue.empty() || clue.back() == ' ')) continue;
    clue += c;
  }
  return std::string(trimSeparators(clue));
}

bool hasOffensiveMarker(std::string_view text) {
  constexpr std::array<std::string_view, 2> kAlwaysMarks = {"disparaging", "derogatory"};
  // A slur is also a curved line in music.
  constexpr std::array<std::string_view, 2> kSlurKinds = {"ethnic", "racial"};
  constexpr std::array<std::string_view, 3> kMarks = {"offensive", "vulgar", "obscene"};
  // "offensive" alone also names a military attack or a football team.
  constexpr std::array<std::string_view, 10> kMarkedNouns = {"term",  "terms", "name",       "names",       "word",
                                                             "words", "slang", "expression", "expressions", "language"};
  const std::vector<std::string> words = lowerWords(text);
  const auto isIn = [](const auto& list, std::string_view word) {
    return std::find(list.begin(), list.end(), word) != list.end();
  };
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (isIn(kAlwaysMarks, words[i])) return true;
    if (words[i].starts_with("slur") && i > 0 && isIn(kSlurKinds, words[i - 1])) return true;
    if (!isIn(kMarks, words[i])) continue;
    if (i + 1 < words.size() && isIn(kMarkedNouns, words[i + 1])) return true;
  }
  std::string lowered(text);
  std::transform(lowered.begin(), lowered.end(), lowered.begin(), lower);
  for (const std::string_view mark : {"(offensive", "(vulgar", "(obscene", "(slur"}) {
    if (lowered.find(mark) != std::string::npos) return true;
  }
  return false;
}

bool isAdultGloss(std::string_view text) {
  constexpr std::array<std::string_view, 19> kAdultWords = {
      "sex",         "sexual",      "sexually",     "intercourse", "copulation", "copulate", "masturbation",
      "masturbate",  "penis",       "genital",      "genitals",    "orgasm",     "erection", "prostitute",
      "prostitutes", "pornography", "pornographic", "anal",        "erotic"};
  for (const std::string& word : lowerWords(text)) {
    if (std::find(kAdultWords.begin(), kAdultWords.end(), word) != kAdultWords.end()) return true;
  }
  return false;
}

std::vector<std::string> obviousForms(std::string_view word) {
  std::vector<std::string> forms;
  std::string w(word);
  std::transform(w.begin(), w.end(), w.begin(), lower);
  if (w.empty()) return forms;
  forms.push_back(w);

  const char last = w.back();
  const std::string butLast = w.substr(0, w.size() - 1);
  for (const char* ending : {"s", "es", "ed", "ing", "er", "est"}) addForm(forms, w + ending);
  if (last == 'y' && w.size() >= 2 && !isVowel(w[w.size() - 2])) {
    for (const char* ending : {"ies", "ied", "ier", "iest"}) addForm(forms, butLast + ending);
  }
  if (last == 'e') {
    for (const char* ending : {"d", "r", "st"}) addForm(forms, w + ending);
    addForm(forms, butLast + "ing");
  }
  if (!isVowel(last) && last != 'w' && last != 'x' && last != 'y') {
    for (const char* ending : {"ed", "ing", "er", "est"}) addForm(forms, w + last + ending);
  }

  // The word may itself be such a form: then its base gives it away too.
  // Comparatives are left out here: "forest" and "offer" are not forms of
  // "for" and "off".
  const auto endsWith = [&w](std::string_view ending) { return w.size() > ending.size() && w.ends_with(ending); };
  const auto stem = [&w](std::size_t cut) { return w.substr(0, w.size() - cut); };
  const auto addStem = [&forms](const std::string& base) {
    if (base.size() < 3) return;  // "thing" is no form of "th" or "the"
    addForm(forms, base);
    addForm(forms, base + "e");
    if (base.size() >= 2 && base.back() == base[base.size() - 2]) addForm(forms, base.substr(0, base.size() - 1));
  };
  if (endsWith("ies") || endsWith("ied")) addForm(forms, stem(3) + "y");
  if (endsWith("es")) addForm(forms, stem(2));
  if (endsWith("s") && !endsWith("ss")) addForm(forms, stem(1));
  if (endsWith("ed")) addStem(stem(2));
  if (endsWith("ing")) addStem(stem(3));
  return forms;
}

bool showsAnyForm(std::string_view text, const std::vector<std::string>& forms) {
  for (const std::string& word : lowerWords(text)) {
    if (std::find(forms.begin(), forms.end(), word) != forms.end()) return true;
  }
  return false;
}

}  // namespace combwise::wordconv

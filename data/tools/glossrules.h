// Turning a WordNet gloss into a clue: the example sentences go, and a gloss
// that is offensive or that gives the answer away is not used at all.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace combwise::wordconv {

// The definition part of a gloss: quoted examples (and their attributions)
// removed, stray quotes dropped, only printable ASCII kept, blanks collapsed,
// no leading or trailing blanks or separators. Empty when nothing is left.
std::string cleanGloss(std::string_view gloss);

// True when the text calls itself offensive, vulgar, obscene, disparaging,
// derogatory or a slur ("(ethnic slur) offensive term for ...").
bool hasOffensiveMarker(std::string_view text);

// True when the text is about sex or sexual anatomy: a family game does
// not ask for such answers, and WordNet marks few of them as offensive.
bool isAdultGloss(std::string_view text);

// The word and the forms of it a reader would spot at once: plurals and
// third persons (-s, -es, -ies), past forms (-ed, -d, -ied), -ing with or
// without the final e, the doubled final consonant, comparatives, and the
// bases those endings would come from. All lower case, without duplicates.
std::vector<std::string> obviousForms(std::string_view word);

// True when one of `forms` (lower case) stands in `text` as a whole word,
// case ignored. Words are runs of letters: "cat's" and "cat-like" show "cat".
bool showsAnyForm(std::string_view text, const std::vector<std::string>& forms);

// The words of a text in lower case: runs of letters a to z.
std::vector<std::string> lowerWords(std::string_view text);

// True when `other` is a relative of `word` (both lower case) that a reader
// would take for a hint: the two share a root once endings are taken off
// ("abuser" and "abuses", "admire" and "admiration", "act" and "action",
// "snowy" and "snow", "advise" and "advice"). A root shorter than four
// letters counts only when it is the whole three-letter word or both words
// have six letters or more, and a root that is a word of its own counts
// only when no bare final "e" had to go to reach it, so "car" and "care",
// "plane" and "plan" stay apart. A word of four letters or more is also
// related to any longer word that begins with it, but for a bare final
// "e": "weigh" and "weight", "king" and "kingdom", not "plan" and "plane".
bool sharesRoot(std::string_view word, std::string_view other);

// True when `other` is `word`, or a root of it of at least four letters,
// joined to another word of three letters or more that `isWord` knows:
// "sandpaper" for sand, "warehouse" for house, "railway" for rails.
bool isCompoundOf(std::string_view word, std::string_view other, const std::function<bool(std::string_view)>& isWord);

}  // namespace combwise::wordconv

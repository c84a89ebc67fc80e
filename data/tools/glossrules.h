// Turning a WordNet gloss into a clue: the example sentences go, and a gloss
// that is offensive or that gives the answer away is not used at all.
#pragma once

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

}  // namespace combwise::wordconv

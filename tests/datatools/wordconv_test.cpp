// The word converter's rules on small made-up inputs: which words and
// senses survive, how a gloss becomes a clue, and how the lines are ordered.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

#include "data/tools/glossrules.h"
#include "data/tools/wordconverter.h"
#include "data/tools/wordnetdata.h"

namespace combwise::wordconv {
namespace {

using ::testing::ElementsAre;

TEST(CleanGloss, KeepsTheDefinitionAndDropsExamples) {
  EXPECT_EQ(cleanGloss(R"(lewd; "obscene calls"; "it became obscene"-Margaret Mead  )"), "lewd");
  // An example may hold a ";" of its own, and a second definition may follow.
  EXPECT_EQ(cleanGloss(R"(cut short; "he stopped; she went on"; bring to an end)"), "cut short; bring to an end");
  // A few glosses run an example on after ":" or ",".
  EXPECT_EQ(cleanGloss(R"(restrict or confine, "I limit you to two visits")"), "restrict or confine");
  EXPECT_EQ(cleanGloss("a  local branch\";  "), "a local branch");
  EXPECT_EQ(cleanGloss(R"("only an example")"), "");
}

TEST(GlossFilters, CatchLabelledOffensiveTermsAndSexualSensesButNotOrdinaryUse) {
  for (const char* marked : {"(ethnic slur) offensive term for a person of Irish descent", "obscene terms for feces",
                             "(slang) a disparaging term for an Asian person", "vulgar slang for a drinking bout",
                             "(Offensive) a stupid person"})
    EXPECT_TRUE(hasOffensiveMarker(marked)) << marked;
  for (const char* plain : {"an offensive against an enemy", "(music) a slur over two notes of the same pitch",
                            "offensively bold", "speak disparagingly of"})
    EXPECT_FALSE(hasOffensiveMarker(plain)) << plain;
  // Sexual senses are caught as whole words only.
  EXPECT_TRUE(isAdultGloss("have sexual intercourse with") && isAdultGloss("the male organ of copulation"));
  EXPECT_FALSE(isAdultGloss("a person who lives in Essex") || isAdultGloss("a canal for boats"));
}

TEST(AnswerForms, HideTheWordAndItsObviousForms) {
  using Case = std::pair<const char*, const char*>;
  // The word may itself be the inflected form ("news", "baking").
  const Case shown[] = {{"cat", "a Cat of the house"}, {"cat", "a cat-like creature"}, {"cat", "domestic cats"},
                        {"box", "put in boxes"},       {"spy", "one who spies"},       {"bake", "the baking of bread"},
                        {"stop", "the train stopped"}, {"big", "bigger than a house"}, {"news", "new information"},
                        {"baking", "to bake"}};
  for (const auto& [word, text] : shown) EXPECT_TRUE(showsAnyForm(text, obviousForms(word))) << word << ": " << text;
  for (const auto& [word, text] :
       {Case{"cat", "a catalog of wares"}, Case{"cat", "scat"}, Case{"thing", "the object of the sentence"},
        Case{"its", "it belongs to it"}, Case{"forest", "a place for trees"}})
    EXPECT_FALSE(showsAnyForm(text, obviousForms(word))) << word << ": " << text;
}

// A small database in WordNet's layout. Offsets here are only names: the
// reader finds a synset by the number its line starts with.
WordNetData sampleWordNet() {
  const std::string noun =
      "  1 licence line\n"
      "00000100 10 n 02 obscenity 0 vulgarism 0 000 | an offensive or indecent word or phrase  \n"
      "00000200 10 n 01 abbreviation 0 000 | a shortened form of a word or phrase  \n"
      "00000300 18 n 01 crane 1 001 @i 00000999 n 0000 | United States writer (1871-1900)  \n"
      "00000400 05 n 01 crane 0 001 @ 00000999 n 0000 | large long-necked wading bird; \"cranes fly south\"  \n"
      "00000500 06 n 01 crane 0 000 | lifts and moves heavy objects  \n"
      "00000600 06 n 02 smear 0 blot 0 001 ;u 00000100 n 0200 | a mark made by rubbing  \n"
      "00000700 06 n 01 DNA 0 000 | the main component of chromosomes  \n"
      "00000800 06 n 01 abc 0 001 ;u 00000200 n 0000 | the alphabet  \n"
      "00000900 05 n 01 mouse 0 000 | a small rodent; plural mice  \n"
      "00000910 05 n 01 mouse 0 000 | a hand-operated pointing device  \n"
      "00000920 18 n 01 paddy 0 000 | (ethnic slur) offensive term for a person of Irish descent  \n"
      "00000930 18 n 01 paddy 0 000 | a flooded field where rice is grown  \n"
      "00000940 18 n 01 cat 0 000 | a feline  \n"
      "00000950 18 n 01 cats 0 000 | a shrub  \n";
  const std::string nounIndex =
      "  1 licence line\n"
      "abc n 1 1 ; 1 0 00000800  \n"
      "blot n 1 0 1 0 00000600  \n"
      "cat n 1 0 1 1 00000940  \n"
      "cats n 1 0 1 0 00000950  \n"
      "crane n 3 2 @ ~ 3 0 00000300 00000400 00000500  \n"
      "dna n 1 0 1 0 00000700  \n"
      "mouse n 2 0 2 1 00000900 00000910  \n"
      "paddy n 2 0 2 0 00000920 00000930  \n"
      "smear n 1 0 1 0 00000600  \n";
  const std::string verb =
      "00000100 35 v 01 crane 0 001 @ 00000200 v 0000 01 + 02 00 | stretch (the neck) so as to see better  \n";
  const std::string verbIndex = "crane v 1 1 @ 1 1 00000100  \n";
  const std::string adjective =
      "00000100 00 a 01 jolly(a) 0 000 | full of merriment; \"a jolly party\"  \n"
      "00000200 00 s 01 jolly 0 000 | full of merriment  \n"
      "00000300 00 s 01 jolly 0 000 | cheerful  \n"
      "00000400 00 s 01 jolly 0 000 | bright  \n"
      "00000500 00 s 01 jolly 0 000 | fine  \n";
  const std::string adjectiveIndex = "jolly a 5 0 5 0 00000100 00000200 00000300 00000400 00000500  \n";

  WordNetData wordnet;
  wordnet.addPart(PartOfSpeech::Noun, nounIndex, noun);
  wordnet.addPart(PartOfSpeech::Verb, verbIndex, verb);
  wordnet.addPart(PartOfSpeech::Adjective, adjectiveIndex, adjective);
  wordnet.addPart(PartOfSpeech::Adverb, "", "");
  wordnet.addExceptions("mice mouse\n");
  return wordnet;
}

// The licence header is checked where it ships, with the generated data.
TEST(WordNetFiles, ParseSynsetLines) {
  const auto synset = parseSynsetLine(
      "00000600 06 n 0a smear 0 blot(p) 0 blot 0 b 0 c 0 d 0 e 0 f 0 g 0 h 0 002 @i 00000001 n 0000 "
      ";u 00000100 s 0200 | a mark  ");
  ASSERT_TRUE(synset);
  ASSERT_EQ(synset->lemmas.size(), 10u);  // the lemma count is hexadecimal
  ASSERT_EQ(synset->pointers.size(), 2u);
  EXPECT_EQ(synset->pointers[1].part, PartOfSpeech::Adjective);
  EXPECT_EQ(synset->pointers[1].sourceWord, 2);
  EXPECT_FALSE(parseSynsetLine("00000600 06 n 02 smear 0 | too short"));
}

TEST(SenseOrder, TaggedSensesFirstInRoundsOverPartsOfSpeech) {
  const std::vector<IndexEntry> entries = {
      {PartOfSpeech::Noun, 1, {1, 2, 3}}, {PartOfSpeech::Verb, 2, {4, 5, 6}}, {PartOfSpeech::Adjective, 0, {7}}};
  std::vector<std::uint32_t> offsets;
  for (const Sense& sense : senseOrder(entries)) offsets.push_back(sense.offset);
  EXPECT_THAT(offsets, ElementsAre(4u, 1u, 5u, 7u, 2u, 6u, 3u));
}

TEST(CandidateWords, OnlyPlainLowerCaseWordsOfThreeToSixLetters) {
  EXPECT_THAT(candidateWords("Crane\ncrane\r\ncat's\ncaf\xC3\xA9\nab\nlonger7\nsmear\ncrane\nabcdef"),
              ElementsAre("abcdef", "crane", "smear"));
}

TEST(ConvertWords, KeepsUpToThreePrintableCluesThatHideTheAnswer) {
  const WordNetData wordnet = sampleWordNet();
  const Conversion result =
      convertWords({"abc", "blot", "cat", "cats", "crane", "dna", "jolly", "mouse", "paddy", "smear", "zzz"}, wordnet);

  // abc: abbreviation usage; dna: written in capitals in WordNet; zzz:
  // unknown to WordNet; blot: the obscenity usage belongs to its lemma
  // alone, so smear keeps the same sense.
  EXPECT_THAT(result.dictionary, ElementsAre("CAT", "CATS", "CRANE", "JOLLY", "MOUSE", "PADDY", "SMEAR"));
  EXPECT_THAT(result.meanings,
              ElementsAre("CAT:a feline", "CATS:a shrub",
                          // The instance (a writer) goes; the example quoting "cranes" is cut.
                          "CRANE:large long-necked wading bird", "CRANE:lifts and moves heavy objects",
                          "CRANE:stretch (the neck) so as to see better",
                          // Three clues at most, a repeated gloss counted once.
                          "JOLLY:bright", "JOLLY:cheerful", "JOLLY:full of merriment",
                          // "mice" is an irregular form of the answer.
                          "MOUSE:a hand-operated pointing device", "PADDY:a flooded field where rice is grown",
                          "SMEAR:a mark made by rubbing"));
}

TEST(AnswerRelatives, ShareARootButNotAChanceLikeness) {
  using Pair = std::pair<const char*, const char*>;
  for (const auto& [word, other] :
       {Pair{"abuser", "abuses"}, Pair{"admire", "admiration"}, Pair{"abort", "abortion"}, Pair{"advise", "advice"},
        Pair{"act", "action"}, Pair{"snowy", "snow"}, Pair{"wiper", "wipes"}, Pair{"active", "action"},
        Pair{"decide", "decision"}, Pair{"merry", "merriment"}, Pair{"gently", "gentle"}, Pair{"weigh", "weight"},
        Pair{"laugh", "laughter"}, Pair{"king", "kingdom"}})
    EXPECT_TRUE(sharesRoot(word, other)) << word << " / " << other;
  for (const auto& [word, other] :
       {Pair{"art", "start"}, Pair{"art", "party"}, Pair{"car", "care"}, Pair{"plane", "plan"}, Pair{"cat", "catalog"},
        Pair{"ration", "rats"}, Pair{"planet", "plant"}, Pair{"brand", "branch"}, Pair{"pen", "pencil"},
        Pair{"plan", "plane"}})
    EXPECT_FALSE(sharesRoot(word, other)) << word << " / " << other;

  const auto isWord = [](std::string_view part) { return part == "paper" || part == "way" || part == "ware"; };
  EXPECT_TRUE(isCompoundOf("sand", "sandpaper", isWord) && isCompoundOf("rails", "railway", isWord) &&
              isCompoundOf("house", "warehouse", isWord));
  // Three-letter words make too many chance compounds (car and carpet).
  EXPECT_FALSE(isCompoundOf("art", "artware", isWord) || isCompoundOf("sand", "sandal", isWord) ||
               isCompoundOf("tile", "tilepapers", [](std::string_view) { return false; }));
}

TEST(ConvertWords, DropsGiveawayAndCrudeSensesKeepingTheCleanOnes) {
  const std::string noun =
      "00000100 18 n 01 abuser 0 000 | someone who abuses  \n"
      "00000200 18 n 01 abuser 0 000 | a cruel and wicked person  \n"
      "00000300 18 n 01 sand 0 000 | a bog of quicksand  \n"
      "00000400 18 n 01 sand 0 000 | fine grains of rock  \n"
      "00000500 18 n 01 admirer 0 000 | one who feels admiration  \n"
      "00000600 18 n 01 dolt 0 000 | a stupid despised man  \n"
      "00000700 18 n 01 paper 0 000 | a material made of cellulose pulp  \n"
      "00000800 10 n 01 derogation 0 000 | a remark that belittles  \n"
      "00000900 18 n 01 cad 0 001 ;u 00000800 n 0000 | a man of low morals  \n"
      "00001000 18 n 01 quick 0 000 | the living  \n";
  const std::string index =
      "abuser n 2 0 2 0 00000100 00000200  \n"
      "admirer n 1 0 1 0 00000500  \n"
      "cad n 1 0 1 0 00000900  \n"
      "dolt n 1 0 1 0 00000600  \n"
      "paper n 1 0 1 0 00000700  \n"
      "quick n 1 0 1 0 00001000  \n"
      "sand n 2 0 2 0 00000300 00000400  \n";
  WordNetData wordnet;
  wordnet.addPart(PartOfSpeech::Noun, index, noun);
  const Conversion result = convertWords({"abuser", "admirer", "cad", "dolt", "sand"}, wordnet, {"dolt"});

  // admirer loses its only sense and with it its place in the dictionary;
  // cad's sense belongs to a disparaging usage; dolt is on the crude list.
  EXPECT_THAT(result.dictionary, ElementsAre("ABUSER", "SAND"));
  EXPECT_THAT(result.meanings, ElementsAre("ABUSER:a cruel and wicked person", "SAND:fine grains of rock"));
}

TEST(CrudeWords, EveryWordCarriesANote) {
  std::string error;
  const auto words = parseCrudeWords("# why\n\nwhore   disparaging\r\nfucker\tobscene\n", error);
  ASSERT_TRUE(words) << error;
  EXPECT_THAT(*words, ElementsAre("fucker", "whore"));
  EXPECT_FALSE(parseCrudeWords("ok fine\nfucker\n", error));
  EXPECT_THAT(error, ::testing::StartsWith("line 2"));
}

}  // namespace
}  // namespace combwise::wordconv

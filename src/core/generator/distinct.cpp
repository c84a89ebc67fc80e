// Repeated words and clue texts of a puzzle.
#include "core/generator/distinct.h"

#include <algorithm>
#include <map>

#include "core/model/text.h"

namespace combwise {
namespace {

int slotCount(const PuzzleState& state) { return std::min(state.WordCount, PuzzleState::kMaxSlots); }

}  // namespace

bool hasRepeatedWord(const PuzzleState& state) {
  std::vector<std::string> words;
  for (int slot = 1; slot <= slotCount(state); ++slot) words.push_back(toUpper(state.WordSlots[slot]));
  std::sort(words.begin(), words.end());
  return std::adjacent_find(words.begin(), words.end()) != words.end();
}

bool attachDistinctClues(PuzzleState& state, const Meanings& meanings, RandomSource& random) {
  const auto& lines = meanings.lines().items();
  const auto usedBefore = [&state](int slot, const std::string& text) {
    for (int earlier = 1; earlier < slot; ++earlier) {
      if (state.ClueTexts[earlier] == text) return true;
    }
    return false;
  };
  for (int slot = 1; slot <= slotCount(state); ++slot) {
    const std::string key = toUpper(state.WordSlots[slot]) + ":";
    const int first = meanings.firstLine(key);
    if (first < 0) {
      state.MeaningNumbers[slot] = 0;
      state.ClueTexts[slot].clear();
      continue;  // no clue at all repeats nothing worth avoiding
    }
    const int count = meanings.countLines(key, first);
    int number = count == 1 ? 1 : static_cast<int>(floorWhole(random.next() * count + 1));
    const auto textOf = [&](int n) { return lines[static_cast<std::size_t>(first + n - 1)].substr(key.size()); };
    if (usedBefore(slot, textOf(number))) {
      number = 0;
      for (int other = 1; other <= count && number == 0; ++other) {
        if (!usedBefore(slot, textOf(other))) number = other;
      }
      if (number == 0) return false;
    }
    state.MeaningNumbers[slot] = number;
    state.ClueTexts[slot] = textOf(number);
  }
  return true;
}

std::vector<std::string> repeatProblems(const PuzzleState& state, const Meanings* meanings) {
  std::vector<std::string> problems;
  std::map<std::string, int> words;
  std::map<std::string, std::vector<std::string>> clues;
  std::vector<std::string> clueOrder;
  for (int slot = 1; slot <= slotCount(state); ++slot) {
    const std::string word = toUpper(state.WordSlots[slot]);
    ++words[word];
    const std::string text =
        meanings ? meanings->clue(state.WordSlots[slot], state.MeaningNumbers[slot]) : state.ClueTexts[slot];
    if (text.empty()) continue;
    auto& holders = clues[text];
    if (holders.empty()) clueOrder.push_back(text);
    holders.push_back(word);
  }
  for (const auto& [word, count] : words) {
    if (count > 1) problems.push_back("word " + word + " stands " + NumberText(count) + " times");
  }
  for (const std::string& text : clueOrder) {
    const auto& holders = clues[text];
    if (holders.size() < 2) continue;
    std::string names;
    for (std::size_t i = 0; i < holders.size(); ++i)
      names += (i == 0 ? "" : i + 1 == holders.size() ? " and " : ", ") + holders[i];
    problems.push_back("clue \"" + text + "\" stands for " + names);
  }
  return problems;
}

}  // namespace combwise

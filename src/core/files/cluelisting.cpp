// The clue listing's text lines.
#include "core/files/cluelisting.h"

#include <cerrno>

#include "core/files/textfile.h"
#include "core/model/text.h"

namespace combwise {

std::string clueNumber(int slot) { return Format00((slot + 1) / 2); }

std::vector<std::string> clueListingLines(const PuzzleState& state, const ListingBanner& banner) {
  const int words = std::min(state.WordCount, PuzzleState::kMaxSlots);
  std::vector<std::string> lines;
  lines.push_back(" " + banner.productName + " - " + banner.makerSite + " (word letters can be in any order)");
  lines.push_back(" Puz#" + Str(state.PuzzleNumber) + ": " + state.CollectionPath);
  lines.emplace_back();
  lines.emplace_back(" INSIDE CLUES:");
  for (int k = 2; k <= words; k += 2) lines.push_back(" " + clueNumber(k) + ". " + state.ClueTexts[k]);
  lines.emplace_back();
  lines.emplace_back(" OUTSIDE CLUES:");
  for (int k = 1; k <= words; k += 2) lines.push_back(" " + clueNumber(k) + ". " + state.ClueTexts[k]);
  return lines;
}

Status writeClueListing(const std::string& path, const PuzzleState& state, const ListingBanner& banner) {
  std::string content;
  for (const std::string& line : clueListingLines(state, banner)) content += line + "\r\n";
  // Written beside the file and renamed over it: a failed write leaves no
  // empty or cut file behind, and an old listing stays as it was.
  errno = 0;
  if (!replaceFileContent(path, content)) return Status::failure(fileErrorMessage("write", path, errno));
  return Status::success();
}

}  // namespace combwise

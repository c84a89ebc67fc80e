// The collection commands: open a collection, save the current puzzle into
// one, browse with the arrows, reopen a recent file, and exit.
#include <filesystem>

#include "core/files/browsing.h"
#include "core/files/textfile.h"
#include "core/model/text.h"
#include "core/session/gamesession.h"
#include "core/session/sessionscopes.h"

namespace combwise {
namespace {

FileQuestion collectionQuestion(const std::string& title, const std::string& folder, const std::string& mode) {
  return {title, "*.txt", "Combwise Files", folder, mode};
}

}  // namespace

void GameSession::openCollection(const std::string& path, int count, CommandResult& result) {
  // The count of the collection shown before comes back when the new one cannot be read.
  const int previousCount = m_puzzle.PuzzleCount;
  m_puzzle.PuzzleCount = count;
  if (showPuzzle(path, 1, result)) {
    result.status = "Puzzle file read";
    return;
  }
  m_puzzle.PuzzleCount = previousCount;
  result.status = "Error loading puzzle file";
}

void GameSession::rememberRecent(const std::string& path, CommandResult& result) {
  addRecentFile(m_settings.recentFiles, path);
  result.redraw |= Redraw::Recent;
}

CommandResult GameSession::loadCollection() {
  CommandResult result;
  if (!createEnabled()) return result;
  const std::string path =
      m_host.chooseFile(collectionQuestion("Select a saved game file to load", m_programFolder, "OPEN"));
  if (path.empty()) return result;
  // What cannot be read (a pipe, a folder, a file without permission) says why.
  if (const auto reason = unreadableReason(path)) {
    result.status = "Error loading puzzle file";
    result.statusTip = *reason;
    result.messages.push_back({*reason, "vbok+vbcritical"});
    return result;
  }
  const int count = countPuzzles(path);
  if (count == 0) {
    result.status = nonEmptyFile(path) ? "Error loading puzzle file" : "No puzzles in " + std::string(fileNameOf(path));
    return result;
  }
  {
    const PointerScope pointer(m_host);
    m_host.progress("Loading puzzle ...");
    openCollection(path, count, result);
  }
  rememberRecent(path, result);
  return result;
}

CommandResult GameSession::savePuzzle() {
  CommandResult result;
  if (!createEnabled()) return result;
  if (m_puzzle.PuzzleSize < 0) {
    result.status = "There is no puzzle to save";
    return result;
  }
  const std::string chosen =
      m_host.chooseFile(collectionQuestion("Select a file to save current puzzle", saveFolder(), "SAVE"));
  if (trimmed(chosen).empty()) return result;
  const std::string path = withDefaultExtension(chosen);
  if (const Status written = writePuzzle(path, WriteMode::Append, m_puzzle); !written.ok()) {
    result.messages.push_back({written.error, "vbok+vbcritical"});
    return result;
  }
  const int count = countPuzzles(path);
  result.messages.push_back({"Puzzle appended to file:\n" + path + "\n" + Str(count) + " puzzles", ""});
  return result;
}

CommandResult GameSession::arrow(int index, int mouseButton) {
  CommandResult result;
  if (!createEnabled() || m_puzzle.CollectionPath.empty()) return result;
  const std::string path = m_puzzle.CollectionPath;
  m_puzzle.PuzzleCount = countPuzzles(path);
  const auto target =
      arrowTarget(index, mouseButton, m_puzzle.PuzzleNumber, m_puzzle.PuzzleCount, [this] { return m_random.next(); });
  if (!target) return result;
  // The number moves first, so a failed read leaves the new number in place.
  m_puzzle.PuzzleNumber = *target;
  m_host.progress("Reading Puzzle ...");
  const PointerScope pointer(m_host);
  result.status = showPuzzle(path, *target, result) ? "Puzzle read" : "Error reading puzzle";
  return result;
}

CommandResult GameSession::openRecent(int index) {
  CommandResult result;
  if (index < 0 || index >= Settings::kRecentFiles) return result;
  if (!createEnabled()) {
    result.messages.push_back({"Cancel puzzle creation", "vbok+vbexclamation"});
    return result;
  }
  const std::string path = m_settings.recentFiles[static_cast<std::size_t>(index)].path;
  if (trimmed(path).empty()) return result;
  if (!nonEmptyFile(path)) {
    // Something there that cannot be read (a pipe, a folder) says what it is.
    const auto reason = unreadableReason(path);
    std::error_code ignored;
    const bool there = std::filesystem::exists(path, ignored);
    result.messages.push_back({there && reason ? *reason : "File does not exist:\n" + path, "vbok+vbcritical"});
    return result;
  }
  {
    const PointerScope pointer(m_host);
    if (const int count = countPuzzles(path); count != 0) openCollection(path, count, result);
    result.redraw |= Redraw::Board;
  }
  rememberRecent(path, result);
  return result;
}

CommandResult GameSession::exit() {
  CommandResult result;
  if (m_host.ask("Exit?", "vbQuestion + vbYesNo") != kAnswerYes) return result;
  result = saveOptions();
  result.close = true;
  return result;
}

}  // namespace combwise

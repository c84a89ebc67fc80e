// The collection commands: open a collection, save the current puzzle into
// one, browse with the arrows, reopen a recent file, and exit.
#include <QAction>
#include <QApplication>
#include <QDir>

#include "core/files/browsing.h"
#include "core/model/text.h"
#include "gui/app/busypointer.h"
#include "gui/app/mainwindow.h"
#include "gui/play/boardpicture.h"
#include "gui/ui/aboutform.h"
#include "gui/ui/helpform.h"
#include "gui/ui/prompter.h"

namespace combwise {
namespace {

QString text(const std::string& value) { return QString::fromStdString(value); }

}  // namespace

// Reads puzzle 1 of a newly chosen collection; the count of the collection
// shown before comes back when the new one cannot be read.
static bool openCollection(MainWindow& window, const std::string& path, int count) {
  PuzzleState& puzzle = window.puzzle();
  const int previousCount = puzzle.PuzzleCount;
  puzzle.PuzzleCount = count;
  if (window.showPuzzle(path, 1)) {
    window.setStatus("Puzzle file read");
    return true;
  }
  puzzle.PuzzleCount = previousCount;
  window.setStatus("Error loading puzzle file");
  return false;
}

void MainWindow::loadPuzzleFile() {
  if (!createEnabled()) return;
  const QString chosen = m_files->chooseFile(
      {"Select a saved game file to load", "*.txt", "Combwise Files", text(m_programFolder), "OPEN", {}});
  if (chosen.isEmpty()) return;
  const std::string path = chosen.toStdString();
  const int count = countPuzzles(path);
  if (count == 0) {
    setStatus(nonEmptyFile(path) ? "Error loading puzzle file" : "No puzzles in " + text(std::string(fileNameOf(path))));
    return;
  }
  {
    BusyPointer busy;
    setStatus("Loading puzzle ...");
    openCollection(*this, path, count);
  }
  addRecentFile(m_settings.recentFiles, path);
  updateRecentMenu();
}

void MainWindow::savePuzzle() {
  if (!createEnabled()) return;
  if (m_puzzle.PuzzleSize < 0) {
    setStatus("There is no puzzle to save");
    return;
  }
  const QString chosen = m_files->chooseFile(
      {"Select a file to save current puzzle", "*.txt", "Combwise Files", text(m_programFolder), "SAVE", {}});
  if (chosen.trimmed().isEmpty()) return;
  const std::string path = withDefaultExtension(chosen.toStdString());
  if (const Status written = writePuzzle(path, WriteMode::Append, m_puzzle); !written.ok()) {
    m_prompter->ShowMessage(text(written.error), "vbok+vbcritical");
    return;
  }
  const int count = countPuzzles(path);
  m_prompter->notify("Puzzle appended to file:\n" + text(path) + "\n" + text(Str(count)) + " puzzles");
}

void MainWindow::arrowClicked(int index, int mouseButton) {
  if (!createEnabled() || m_puzzle.CollectionPath.empty()) return;
  const std::string path = m_puzzle.CollectionPath;
  m_puzzle.PuzzleCount = countPuzzles(path);
  const auto target =
      arrowTarget(index, mouseButton, m_puzzle.PuzzleNumber, m_puzzle.PuzzleCount, [this] { return m_random.next(); });
  if (!target) return;
  // The number moves first, so a failed read leaves the new number in place.
  m_puzzle.PuzzleNumber = *target;
  setStatus("Reading Puzzle ...");
  BusyPointer busy;
  setStatus(showPuzzle(path, *target) ? "Puzzle read" : "Error reading puzzle");
}

void MainWindow::recentFileChosen(int index) {
  if (!createEnabled()) {
    m_prompter->ShowMessage("Cancel puzzle creation", "vbok+vbexclamation");
    return;
  }
  const std::string path = m_settings.recentFiles[static_cast<std::size_t>(index)].path;
  if (trimmed(path).empty()) return;
  if (!nonEmptyFile(path)) {
    m_prompter->ShowMessage("File does not exist:\n" + text(path), "vbok+vbcritical");
    return;
  }
  {
    BusyPointer busy;
    if (const int count = countPuzzles(path); count != 0) openCollection(*this, path, count);
    boardPicture()->DrawBoard(LetterMode::Play);
  }
  addRecentFile(m_settings.recentFiles, path);
  updateRecentMenu();
}

void MainWindow::exitCommand() {
  if (m_prompter->ShowMessage("Exit?", "vbQuestion + vbYesNo") != kMsgYes) return;
  saveOptions();
  close();
}

void MainWindow::showHelp() {
  auto* help = findChild<Form4*>();
  if (!help) {
    help = new Form4(text(m_programFolder), this);
    help->setWindowFlag(Qt::Window);
  }
  help->show();
  help->raise();
  help->activateWindow();
}

void MainWindow::showAbout() {
  AboutForm about(this);
  about.exec();
}

}  // namespace combwise

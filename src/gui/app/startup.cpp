// Start-up, the one-shot start step, settings, the dictionary, and showing a
// puzzle once it is read.
#include <QAction>
#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QTimer>

#include "core/files/boardoptions.h"
#include "core/files/browsing.h"
#include "core/model/text.h"
#include "gui/app/clicklabel.h"
#include "gui/app/busypointer.h"
#include "gui/app/mainwindow.h"
#include "gui/play/boardpicture.h"
#include "gui/play/cluepicture.h"
#include "gui/ui/boxcontrol.h"
#include "gui/ui/prompter.h"

namespace combwise {
namespace {

// A file's name on a status line label, its full path as the tip.
void showFileName(QLabel* label, const std::string& path) {
  const QString name = QString::fromStdString(std::string(fileNameOf(path)));
  label->setText(name);
  label->setToolTip(QString::fromStdString(path));
  label->setMinimumWidth(label->fontMetrics().horizontalAdvance(name) + 12);
}

}  // namespace

void MainWindow::startUp() {
  m_settings = startupSettings();
  m_settings.dictionaryPath = defaultDictionaryPath(m_programFolder);
  m_puzzle.PuzzleSize = -1;
  ReadcfgFile(m_programFolder, m_settings);
  m_fontSize = m_settings.BoardFontSize > 0 ? m_settings.BoardFontSize : 10;
  const SchemeLoad scheme =
      loadStartupScheme(schemeFilePath(m_programFolder), m_settings.schemeName, m_scheme, DesignedColours{});
  if (!scheme.message.empty()) {
    m_prompter->ShowMessage(QString::fromStdString(scheme.message), QString(kStartupSchemeStyle.data()));
    m_settings.schemeName = m_scheme.name;
  }
  m_scheme[ColourScheme::kButtonOverride] = m_settings.schemeColour13;
  m_layout = LayOutBoard({-1, 0, 0, 225, 375, Twips::of(*this).perPixelX, Twips::of(*this).perPixelY});
  updateRecentMenu();
  paintScheme();
  applyLook();
  m_startTimer->start();
}

void MainWindow::setStartCollection(const std::string& path, int n) {
  m_settings.collectionPath = path;
  m_settings.PuzzleNumber = n;
}

void MainWindow::startTimerTick() {
  BusyPointer busy;
  m_startTimer->stop();
  readDictionary(m_settings.dictionaryPath);

  // The last collection, else the readymade one here or in the program folder.
  auto collection = startupCollection(m_settings.collectionPath, nonEmptyFile);
  int number = m_settings.PuzzleNumber;
  if (collection && *collection != m_settings.collectionPath) {
    number = 1;
  } else if (!collection && nonEmptyFile(m_programFolder + kReadymadeCollection)) {
    collection = m_programFolder + kReadymadeCollection;
    number = 1;
  }
  if (!collection) {
    m_puzzle.CollectionPath.clear();
    m_puzzle.PuzzleNumber = 0;
    setStatus({});
    setCreateEnabled(true);
    m_startedUp = true;
    return;
  }
  setCreateEnabled(false);
  m_puzzle.PuzzleCount = countPuzzles(*collection);
  if (number < 1) number = 1;
  if (showPuzzle(*collection, number)) {
    setStatus("Ready ...");
  } else {
    // A stored number beyond the collection starts with an empty board.
    m_puzzle.PuzzleNumber = 0;
    m_puzzle.CollectionPath.clear();
    setStatus({});
  }
  setCreateEnabled(true);
  m_startedUp = true;
}

void MainWindow::readDictionary(const std::string& path) {
  BusyPointer busy;
  setCreateEnabled(false);
  const Status read = m_maker.loadDictionary(
      path, [this](const std::string& text) { setStatus(QString::fromStdString(text)); }, [this] { pumpEvents(); });
  m_settings.dictionaryPath = path;
  showFileName(m_dictionaryLabel, path);
  if (!read.ok()) setStatus(QString::fromStdString(read.error));
  setCreateEnabled(true);
}

void MainWindow::updateRecentMenu() {
  for (int i = 0; i < Settings::kRecentFiles; ++i) {
    const RecentFile& entry = m_settings.recentFiles[static_cast<std::size_t>(i)];
    m_recentActions[i]->setText(QString::fromStdString(entry.path));
    m_recentActions[i]->setVisible(entry.shown);
  }
  m_recentSeparator->setVisible(m_settings.recentSeparatorShown());
}

void MainWindow::saveOptions() {
  m_settings.collectionPath = m_puzzle.CollectionPath;
  m_settings.PuzzleNumber = m_puzzle.PuzzleNumber;
  m_settings.schemeName = m_scheme.name;
  m_settings.schemeColour13 = m_scheme[ColourScheme::kButtonOverride];
  if (const Status saved = SavecfgFile(m_programFolder, m_settings); !saved.ok())
    setStatus(QString::fromStdString(saved.error));
}

void MainWindow::applyLook() {
  BoardView view;
  view.colours.outline = colourOf(m_settings.OutlineColour);
  view.colours.fill = colourOf(m_settings.HexFillColour);
  view.colours.numbers = colourOf(m_settings.HexNumberColour);
  view.colours.given = colourOf(m_settings.GivenLetterColour);
  view.colours.entries = colourOf(m_settings.EntryColour);
  view.outlineWidth = m_settings.OutlineWidth > 0 ? m_settings.OutlineWidth : 2;
  const QString family = QString::fromStdString(m_settings.boardFontName.empty() ? "Arial" : m_settings.boardFontName);
  view.font = boardFont(family, m_fontSize);
  view.letters = m_picture->view().letters;
  m_picture->setView(view);
  const int clueSize = m_settings.BoardFontSize > 0 ? m_settings.BoardFontSize : 10;
  m_clues->setClueFont(boardFont(family, clueSize * 0.7));
  for (QListWidget* list : {m_insideWords, m_outsideWords}) list->setFont(boardFont(family, clueSize * 0.8));
}

ClueSource MainWindow::clueSource() {
  return ClueSource{&m_meanings, m_programFolder + "mean3456.txt", [this] { pumpEvents(); }};
}

void MainWindow::pumpEvents() {
  // Long loops call this for every line or try; letting events run every
  // few milliseconds keeps the window as responsive at a fraction of the cost.
  if (m_pumpClock.isValid() && m_pumpClock.elapsed() < 15) return;
  QCoreApplication::processEvents();
  m_pumpClock.start();
}

bool MainWindow::showPuzzle(const std::string& path, int n) {
  const PuzzleReadResult read = readPuzzle(path, n, m_board, m_puzzle, clueSource());
  if (read.outcome == ReadOutcome::NoPuzzles || read.outcome == ReadOutcome::Unreadable) {
    m_prompter->ShowMessage(QString::fromStdString(read.message), "vbok+vbcritical");
    pumpEvents();
  }
  // The status line says that a read failed; its tip says why.
  m_status->setToolTip(read.loaded() ? QString() : QString::fromStdString(read.message));
  if (!read.loaded()) return false;
  puzzleShown(read);
  return true;
}

void MainWindow::puzzleShown(const PuzzleReadResult& read) {
  if (read.rebuilt || m_layout.CellX[1][1] == 0 || m_board.size() != m_laidOutSize) fitBoard();
  if (!read.clues.ok()) setStatus(QString::fromStdString(read.clues.error));
  m_counter->setText(QString::fromStdString(positionText(m_puzzle.PuzzleNumber, m_puzzle.PuzzleCount)));
  showFileName(m_fileLabel, m_puzzle.CollectionPath);
  m_sizeLabel->setText(QString::fromStdString(NumberText(m_puzzle.PuzzleSize)));

  const WordListLines words = wordListLines(m_puzzle);
  m_insideWords->clear();
  m_outsideWords->clear();
  for (const auto& line : words.inside) m_insideWords->addItem(QString::fromStdString(line));
  for (const auto& line : words.outside) m_outsideWords->addItem(QString::fromStdString(line));

  m_picture->hideMarker();
  m_picture->DrawBoard(LetterMode::Play);
  m_clues->DrawClues();
  m_picture->setFocus();
}

void MainWindow::fitBoard() {
  const Twips twips = Twips::of(*this);
  const CellSize fit = fitCellSize(m_board.rows(), m_board.cols(), m_boardFrame->width() * twips.perPixelX,
                                   m_boardFrame->height() * twips.perPixelY);
  m_fitWidth = fit.width;
  m_fitHeight = fit.height;
  m_laidOutSize = m_board.size();
  m_picture->move(qRound(64 / twips.perPixelX), qRound(64 / twips.perPixelY));
  m_clueFrame->setTitle("Clues");
  relayout(fit.width, fit.height);
}

void MainWindow::relayout(int cellWidth, int cellHeight) {
  const Twips twips = Twips::of(*this);
  m_layout = LayOutBoard(
      {m_board.size(), m_board.rows(), m_board.cols(), cellWidth, cellHeight, twips.perPixelX, twips.perPixelY});
  m_picture->applyLayout();
}

}  // namespace combwise

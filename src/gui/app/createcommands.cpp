// Making puzzles from the window: the size label, Create with its way out,
// and Load a Dictionary.
#include <QAction>
#include <QApplication>
#include <QCoreApplication>
#include <optional>

#include "core/model/text.h"
#include "gui/app/busypointer.h"
#include "gui/app/clicklabel.h"
#include "gui/app/mainwindow.h"
#include "gui/play/boardpicture.h"
#include "gui/ui/boxcontrol.h"
#include "gui/ui/prompter.h"

namespace combwise {

void MainWindow::sizeLabelClicked() {
  const auto shown = static_cast<int>(leadingWhole(m_sizeLabel->text().toStdString()));
  m_sizeLabel->setText(QString::number(Board::nextSize(shown)));
}

void MainWindow::showSize(int size) { m_sizeLabel->setText(QString::number(size)); }

void MainWindow::createPuzzle() {
  if (!createEnabled()) return;
  const auto size = static_cast<int>(leadingWhole(m_sizeLabel->text().toStdString()));
  if (PuzzleMaker::refuses(m_settings.dictionaryPath, size)) {
    m_prompter->ShowMessage(kLargePuzzleRefusal, "vbcritical+vbok");
    return;
  }
  std::optional<BusyPointer> busy(std::in_place);
  m_picture->hideMarker();
  m_puzzle.SelRow = m_puzzle.SelCol = 0;
  setCreateEnabled(false);
  m_creating = true;
  m_cancelRequested = false;
  m_cancelButton->show();
  m_cancelAction->setEnabled(true);
  setStatus("Creating a puzzle ...");

  GeneratorHooks hooks;
  hooks.status = [this](const std::string& status) { setStatus(QString::fromStdString(status)); };
  hooks.events = [this] { pumpEvents(); };
  hooks.stop = [this] { return m_cancelRequested; };
  hooks.maxTries = kDefaultMaxTries;  // a dictionary that cannot make the size says so
  const CreateResult result = m_maker.create(size, m_settings.dictionaryPath, m_programFolder + "mean3456.txt",
                                             m_random, hooks, kTemporaryPuzzleFile);
  m_creating = false;
  m_cancelButton->hide();
  m_cancelAction->setEnabled(false);
  setCreateEnabled(true);
  busy.reset();

  if (result.created()) {
    m_puzzle.PuzzleCount = 1;
    PuzzleReadResult shown;
    shown.outcome = ReadOutcome::Loaded;
    shown.number = 1;
    puzzleShown(shown);
    setStatus("Puzzle created ...");
  } else if (m_cancelRequested) {
    setStatus("Puzzle creation cancelled");
  } else {
    setStatus(QString::fromStdString(result.message));
    m_prompter->ShowMessage(QString::fromStdString(result.message), "vbok+vbcritical");
  }
}

void MainWindow::cancelCreation() {
  if (!m_creating) return;
  m_cancelRequested = true;
  setStatus("Cancelling ...");
}

void MainWindow::loadDictionaryCommand() {
  if (!createEnabled()) return;
  const QString chosen = m_files->chooseFile({"Select a Dictionary file", "*.txt;*.dic", "Combwise Files",
                                              QString::fromStdString(m_programFolder), "OPEN", {}});
  if (chosen.isEmpty()) return;
  readDictionary(chosen.toStdString());
}

}  // namespace combwise

// The window's side of the session: painting what a command returned, and
// the host callbacks through which the session asks, chooses files, shows
// progress and lets events run.
#include <QAction>
#include <QApplication>
#include <QCoreApplication>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QTimer>

#include "core/model/text.h"
#include "gui/app/mainwindow.h"
#include "gui/play/boardpicture.h"
#include "gui/play/cluepicture.h"
#include "gui/ui/boxcontrol.h"
#include "gui/ui/clicklabel.h"
#include "gui/ui/prompter.h"

namespace combwise {
namespace {

QString text(const std::string& value) { return QString::fromStdString(value); }

// A file's name on a status line label, its full path as the tip.
void showFileName(QLabel* label, const std::string& path) {
  const QString name = text(std::string(fileNameOf(path)));
  label->setText(name);
  label->setToolTip(text(path));
  label->setMinimumWidth(label->fontMetrics().horizontalAdvance(name) + 12);
}

}  // namespace

void MainWindow::paint(const CommandResult& result) {
  const Redraw redraw = result.redraw;
  if (has(redraw, Redraw::Look)) {
    paintScheme();
    applyLook();
  }
  // No intermediate state shows while the board is laid out again.
  const bool relayout = has(redraw, Redraw::Fitted | Redraw::Layout);
  if (relayout) m_boardFrame->setUpdatesEnabled(false);
  if (has(redraw, Redraw::Fitted)) {
    moveBoardHome();
    m_clueFrame->setTitle("Clues");
  }
  if (has(redraw, Redraw::BoardHome)) moveBoardHome();
  if (has(redraw, Redraw::Font)) {
    BoardView view = m_picture->view();
    view.font.setPointSizeF(m_session.fontSize());
    m_picture->setView(view);
  }
  if (relayout) m_picture->applyLayout();
  if (has(redraw, Redraw::Puzzle)) paintPuzzle();
  if (has(redraw, Redraw::Puzzle | Redraw::Record)) paintRecord();
  if (has(redraw, Redraw::Board)) m_picture->DrawBoard(LetterMode::Play);
  if (has(redraw, Redraw::HideSolution)) showSolution(false);
  if (has(redraw, Redraw::Solution)) showSolution(true);
  if (has(redraw, Redraw::Marks)) m_picture->setMarks(m_session.marks());
  if (has(redraw, Redraw::Marker)) {
    m_picture->hideMarker();
    const PuzzleState& puzzle = m_session.puzzle();
    if (puzzle.SelRow != 0) {
      m_picture->showMarkerAt(puzzle.SelRow, puzzle.SelCol);
      m_picture->setFocus();
    }
  }
  if (has(redraw, Redraw::Marker | Redraw::Puzzle)) paintHighlight();
  if (relayout) m_boardFrame->setUpdatesEnabled(true);
  if (has(redraw, Redraw::Recent)) updateRecentMenu();
  if (has(redraw, Redraw::Dictionary)) showFileName(m_dictionaryLabel, m_session.settings().dictionaryPath);
  if (has(redraw, Redraw::Size)) m_sizeLabel->setText(QString::number(m_session.sizeToCreate()));

  if (result.statusTip) m_status->setToolTip(text(*result.statusTip));
  if (result.status) setStatus(text(*result.status));
  for (const Message& message : result.messages) {
    if (message.style.empty())
      m_prompter->notify(text(message.text));
    else
      m_prompter->ShowMessage(text(message.text), text(message.style));
  }
  if (!result.messages.empty()) pumpEvents();
  if (m_session.progressUnsaved() && !m_progressTimer->isActive()) m_progressTimer->start();
  if (result.close) close();
}

bool MainWindow::showPuzzle(const std::string& path, int n) {
  CommandResult result;
  const bool loaded = m_session.showPuzzle(path, n, result);
  paint(result);
  return loaded;
}

void MainWindow::paintPuzzle() {
  const PuzzleState& puzzle = m_session.puzzle();
  m_counter->setText(text(positionText(puzzle.PuzzleNumber, puzzle.PuzzleCount)));
  showFileName(m_fileLabel, puzzle.CollectionPath);
  const WordListLines words = wordListLines(puzzle);
  m_insideWords->clear();
  m_outsideWords->clear();
  for (const auto& line : words.inside) m_insideWords->addItem(text(line));
  for (const auto& line : words.outside) m_outsideWords->addItem(text(line));
  m_picture->hideMarker();
  m_picture->DrawBoard(LetterMode::Play);
  m_clues->DrawClues();
  m_picture->setFocus();
}

void MainWindow::showSolution(bool shown) {
  if (!shown) {
    m_insideWords->hide();
    m_outsideWords->hide();
    m_clueFrame->setTitle("Clues");
    return;
  }
  m_picture->DrawBoard(LetterMode::Solution);
  if (!m_session.hasPuzzle()) return;
  for (QListWidget* list : {m_insideWords, m_outsideWords}) {
    list->show();
    list->raise();
  }
  m_clueFrame->setTitle("Solution");
}

void MainWindow::moveBoardHome() {
  const Twips twips = Twips::of(*this);
  m_picture->move(qRound(kBoardPictureOffset / twips.perPixelX), qRound(kBoardPictureOffset / twips.perPixelY));
}

void MainWindow::updateRecentMenu() {
  const Settings& settings = m_session.settings();
  for (int i = 0; i < Settings::kRecentFiles; ++i) {
    const RecentFile& entry = settings.recentFiles[static_cast<std::size_t>(i)];
    m_recentActions[i]->setText(text(entry.path));
    m_recentActions[i]->setVisible(entry.shown);
  }
  m_recentSeparator->setVisible(settings.recentSeparatorShown());
}

int MainWindow::ask(const std::string& prompt, const std::string& style) {
  return m_prompter->ShowMessage(text(prompt), text(style));
}

bool MainWindow::confirm(const std::string& question) { return m_prompter->confirm(text(question)); }

std::string MainWindow::chooseFile(const FileQuestion& question) {
  return m_files
      ->chooseFile({text(question.title),
                    text(question.fileTypes),
                    text(question.fileTypesName),
                    text(question.defaultDir),
                    text(question.mode),
                    {}})
      .toStdString();
}

void MainWindow::tell(const Message& message) {
  if (message.style.empty())
    m_prompter->notify(text(message.text));
  else
    m_prompter->ShowMessage(text(message.text), text(message.style));
}

void MainWindow::progress(const std::string& status) { setStatus(text(status)); }

void MainWindow::pumpEvents() {
  // Long loops call this for every line or try; letting events run every
  // few milliseconds keeps the window as responsive at a fraction of the cost.
  if (m_pumpClock.isValid() && m_pumpClock.elapsed() < 15) return;
  QCoreApplication::processEvents();
  m_pumpClock.start();
}

void MainWindow::busyChanged() {
  const bool enabled = m_session.createEnabled();
  m_createAction->setEnabled(enabled);
  m_createButton->setEnabled(enabled);
  m_cancelButton->setVisible(m_session.creating());
  m_cancelAction->setEnabled(m_session.creating());
  // While busy no cell is selected.
  if (!enabled) m_picture->hideMarker();
}

void MainWindow::pointerBusy(bool busy) {
  if (busy)
    QApplication::setOverrideCursor(Qt::BusyCursor);
  else
    QApplication::restoreOverrideCursor();
}

ScreenMeasures MainWindow::measures() const {
  const Twips twips = Twips::of(*this);
  return {twips.perPixelX, twips.perPixelY, m_boardFrame->width() * twips.perPixelX,
          m_boardFrame->height() * twips.perPixelY};
}

}  // namespace combwise

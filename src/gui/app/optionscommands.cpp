// The options window, the help and About windows, and the look of the game:
// the colour scheme on every window and the board's colours and fonts.
#include <QAction>
#include <QList>
#include <QListWidget>

#include "core/files/contrast.h"
#include "gui/app/mainwindow.h"
#include "gui/play/boardpicture.h"
#include "gui/play/cluepicture.h"
#include "gui/ui/aboutform.h"
#include "gui/ui/dialogservices.h"
#include "gui/ui/form2.h"
#include "gui/ui/helpform.h"
#include "gui/ui/msgform.h"
#include "gui/ui/schemepainter.h"

namespace combwise {

void MainWindow::editOptions() {
  auto* options = findChild<Form2*>();
  if (!options) {
    options =
        new Form2(m_session.settings(), m_session.scheme(), QString::fromStdString(programFolder()), *m_prompter, this);
    connect(options, &Form2::applied, this, [this, options] {
      paint(m_session.applyOptions(options->choice()));
      paint(m_session.setExtraOptions(options->cleanBoardChecked(), options->noWordTwiceChecked()));
    });
  }
  const ExtraOptions& extra = m_session.extraOptions();
  options->setPlayOptions(extra.cleanBoardEachPuzzle, extra.noWordTwice);
  options->show();
  options->raise();
  options->activateWindow();
}

void MainWindow::showHelp() {
  auto* help = findChild<Form4*>();
  if (!help) {
    help = new Form4(QString::fromStdString(programFolder()), this);
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

void MainWindow::paintScheme() {
  ColourScheme painted = m_session.scheme();
  prepareSchemePaint(painted);
  applyScheme(this, painted);
  if (auto* windowPrompter = dynamic_cast<WindowPrompter*>(m_prompter)) {
    MsgForm& box = windowPrompter->messageForm();
    QList<QColor> table;
    for (int colour : painted.colours) table << toQColor(colour);
    box.setSchemeTable(table);
    applyScheme(&box, painted);
  }
}

void MainWindow::applyLook() {
  const BoardLook look = m_session.look();
  BoardView view;
  view.colours.outline = colourOf(look.outline);
  view.colours.fill = colourOf(look.fill);
  view.colours.numbers = colourOf(look.numbers);
  view.colours.given = colourOf(look.given);
  view.colours.entries = colourOf(look.entries);
  view.colours.highlight = colourOf(SchemeBoardColours::of(m_session.scheme()).highlight);
  m_clues->setHighlightColour(view.colours.highlight);
  view.outlineWidth = look.outlineWidth;
  const QString family = QString::fromStdString(look.fontName);
  view.font = boardFont(family, m_session.fontSize());
  view.letters = m_picture->view().letters;
  m_picture->setView(view);
  m_clues->setClueFont(boardFont(family, look.fontSize * 0.7));
  for (QListWidget* list : {m_insideWords, m_outsideWords}) list->setFont(boardFont(family, look.fontSize * 0.8));
}

}  // namespace combwise

// The options window and the colour scheme on every window of the game.
#include <QAction>
#include <QList>

#include "gui/app/mainwindow.h"
#include "gui/play/boardpicture.h"
#include "gui/ui/dialogservices.h"
#include "gui/ui/form2.h"
#include "gui/ui/msgform.h"
#include "gui/ui/schemepainter.h"

namespace combwise {

void MainWindow::editOptions() {
  auto* options = findChild<Form2*>();
  if (!options) {
    options = new Form2(m_settings, m_scheme, QString::fromStdString(m_programFolder), *m_prompter, this);
    connect(options, &Form2::applied, this, [this] {
      m_fontSize = m_settings.BoardFontSize > 0 ? m_settings.BoardFontSize : 10;
      paintScheme();
      applyLook();
    });
  }
  options->show();
  options->raise();
  options->activateWindow();
}

void MainWindow::paintScheme() {
  ColourScheme painted = m_scheme;
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

}  // namespace combwise

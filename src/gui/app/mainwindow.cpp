// The main window's construction and menu wiring.
#include "gui/app/mainwindow.h"

#include <QAction>
#include <QLabel>
#include <QMenuBar>
#include <QStatusBar>

namespace combwise {

MainWindow::MainWindow(std::string programFolder, QWidget* parent)
    : QMainWindow(parent), m_programFolder(std::move(programFolder)) {
  setObjectName("Form1");
  setWindowTitle("Combwise");
  resize(1000, 700);

  auto* board = new QLabel(this);
  board->setObjectName("Picture1");
  board->setAlignment(Qt::AlignCenter);
  setCentralWidget(board);

  buildMenus();
  statusBar()->showMessage("Ready ...");
}

void MainWindow::buildMenus() {
  QMenu* file = menuBar()->addMenu("&File");
  file->setObjectName("mnufile");
  QAction* exit = file->addAction("E&xit");
  exit->setObjectName("cmdexitx");
  connect(exit, &QAction::triggered, this, &QWidget::close);
}

}  // namespace combwise

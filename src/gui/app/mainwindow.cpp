// The main window's construction: its controls, their names and tips, and
// the menus with their shortcuts, each wired to a session command.
#include "gui/app/mainwindow.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>
#include <functional>

#include "gui/output/outputcommands.h"
#include "gui/play/boardpicture.h"
#include "gui/play/cluepicture.h"
#include "gui/ui/boxcontrol.h"
#include "gui/ui/clicklabel.h"
#include "gui/ui/dialogservices.h"

namespace combwise {

MainWindow::MainWindow(std::string programFolder, WindowServices services, QWidget* parent)
    : QMainWindow(parent), m_session(std::move(programFolder), *this) {
  setObjectName("Form1");
  setWindowTitle("Combwise");
  if (services.prompter) {
    m_prompter = services.prompter;
  } else {
    m_ownPrompter = std::make_unique<WindowPrompter>(this);
    m_prompter = m_ownPrompter.get();
  }
  if (services.files) {
    m_files = services.files;
  } else {
    m_ownFiles = std::make_unique<DialogFileChooser>(this);
    m_files = m_ownFiles.get();
  }
  buildControls();
  buildMenus();
  wirePlay();
  paint(m_session.startUp());
  m_startTimer->start();
}

MainWindow::~MainWindow() = default;

BoxControl* MainWindow::addButton(const QString& name, const QString& caption, const QString& tip) {
  auto* button = new BoxControl(caption, this);
  button->setObjectName(name);
  button->setToolTipText1(tip);
  button->setFocusPolicy(Qt::NoFocus);  // the keys belong to the board
  return button;
}

void MainWindow::buildCommandRow() {
  auto* commands = new QHBoxLayout;
  commands->setSpacing(4);
  BoxControl* load = addButton("cmdload", "Open...", "Load Puzzle file");
  connect(load, &BoxControl::click, this, [this](int) { paint(m_session.loadCollection()); });
  commands->addWidget(load);
  const QString arrowCaptions[3] = {QStringLiteral("\u25C0"), QStringLiteral("?"), QStringLiteral("\u25B6")};
  const QString arrowTips[3] = {"Previous puzzle; rightclick for first", "Random puzzle",
                                "Next puzzle; rightclick for last"};
  for (int k = 0; k < 3; ++k) {
    BoxControl* arrow = addButton(QString("cmdarrow%1").arg(k), arrowCaptions[k], arrowTips[k]);
    arrow->setMinimumWidth(34);
    connect(arrow, &BoxControl::click, this, [this, k](int button) { paint(m_session.arrow(k, button)); });
    commands->addWidget(arrow);
  }
  m_counter = new QLabel(this);
  m_counter->setObjectName("lblcounter");
  m_counter->setMinimumWidth(110);
  m_counter->setMargin(4);  // a solved mark and time must not touch the frame
  m_counter->setAlignment(Qt::AlignCenter);
  commands->addWidget(m_counter);
  commands->addSpacing(10);

  commands->addWidget(new QLabel("Size", this));
  m_sizeLabel = new ClickLabel(QString::number(m_session.sizeToCreate()), this);
  m_sizeLabel->setObjectName("lblsize");
  m_sizeLabel->setToolTip("Puzzle size; click to change");
  m_sizeLabel->setFrameShape(QFrame::StyledPanel);
  m_sizeLabel->setAlignment(Qt::AlignCenter);
  m_sizeLabel->setMinimumWidth(34);
  m_sizeLabel->setCursor(Qt::PointingHandCursor);
  connect(m_sizeLabel, &ClickLabel::clicked, this, [this] { paint(m_session.nextSize()); });
  commands->addWidget(m_sizeLabel);
  m_createButton = addButton("cmdcreate", "Create", "Create a new puzzle of the size shown");
  connect(m_createButton, &BoxControl::click, this, [this](int) { paint(m_session.create()); });
  commands->addWidget(m_createButton);
  m_cancelButton = addButton("cmdcancel", "Cancel", "Stop creating the puzzle (Escape)");
  connect(m_cancelButton, &BoxControl::click, this, [this](int) { paint(m_session.cancelCreation()); });
  m_cancelButton->hide();
  commands->addWidget(m_cancelButton);
  BoxControl* dictionary = addButton("cmdloaddict", "Dictionary...", "Load a Dictionary");
  connect(dictionary, &BoxControl::click, this, [this](int) { paint(m_session.chooseDictionary()); });
  commands->addWidget(dictionary);
  commands->addStretch(1);

  BoxControl* undo = addButton("cmdundo", "Undo", "Undo the last letter; rightclick to reset the puzzle");
  connect(undo, &BoxControl::click, this, [this](int button) { paint(m_session.undo(button)); });
  commands->addWidget(undo);
  BoxControl* verify = addButton("cmdverify", "Verify", "Hold down to cross the unfinished hexagons");
  connect(verify, &BoxControl::press, this, [this](int) { paint(m_session.verifyPressed()); });
  connect(verify, &BoxControl::click, this, [this](int) { paint(m_session.verifyReleased()); });
  commands->addWidget(verify);
  BoxControl* solution = addButton("cmdshowsol", "Solution", "Hold down to see the solution");
  connect(solution, &BoxControl::press, this, [this](int) { paint(m_session.showSolutionPressed()); });
  connect(solution, &BoxControl::click, this, [this](int) { paint(m_session.showSolutionReleased()); });
  commands->addWidget(solution);
  commands->addSpacing(10);
  const QString zoomCaptions[3] = {QStringLiteral("\u2212"), QStringLiteral("+"), QStringLiteral("1:1")};
  const QString zoomTips[3] = {"Zoom out", "Zoom in", "Reset zoom"};
  for (int i = 0; i < 3; ++i) {
    BoxControl* zoom = addButton(QString("cmdzoom%1").arg(i), zoomCaptions[i], zoomTips[i]);
    zoom->setMinimumWidth(34);
    connect(zoom, &BoxControl::click, this, [this, i](int) { paint(m_session.zoom(i)); });
    commands->addWidget(zoom);
  }
  static_cast<QVBoxLayout*>(centralWidget()->layout())->addLayout(commands);
}

void MainWindow::buildControls() {
  auto* central = new QWidget(this);
  auto* outer = new QVBoxLayout(central);
  outer->setContentsMargins(8, 6, 8, 4);
  outer->setSpacing(6);
  setCentralWidget(central);
  buildCommandRow();

  // The board frame and the clue panel side by side.
  auto* body = new QHBoxLayout;
  body->setSpacing(8);
  m_boardFrame = new QFrame(this);
  m_boardFrame->setObjectName("Picture5");
  m_boardFrame->setFrameShape(QFrame::StyledPanel);
  m_boardFrame->setMinimumSize(560, 480);
  m_boardFrame->setAutoFillBackground(true);
  m_picture = new BoardPicture(m_session.board(), m_session.puzzle(), m_session.layout(), m_boardFrame);
  m_picture->move(4, 4);
  connect(m_picture, &BoardPicture::hovered, this, [this](double x, double y) { paint(m_session.hover(x, y)); });
  connect(m_picture, &BoardPicture::typed, this, [this](int code) { paint(m_session.type(code)); });
  connect(m_picture, &BoardPicture::navigated, this, [this](int key) { paint(m_session.navigate(key)); });
  connect(m_picture, &BoardPicture::left, this, [this] { paint(m_session.pointerLeft()); });
  body->addWidget(m_boardFrame, 3);

  m_clueFrame = new QGroupBox("Clues", this);
  m_clueFrame->setObjectName("Frame1");
  m_clueFrame->setMinimumWidth(300);
  auto* clueGrid = new QGridLayout(m_clueFrame);
  clueGrid->setContentsMargins(6, 6, 6, 6);
  clueGrid->setSpacing(0);  // the solution's word lists cover the clues wholly
  m_clueViewport = new ClueViewport(m_clueFrame);
  m_clues = new CluePicture(m_session.puzzle(), m_clueViewport);
  m_clueViewport->setPicture(m_clues);
  clueGrid->addWidget(m_clueViewport, 0, 0, 1, 2);
  m_insideWords = new QListWidget(m_clueFrame);
  m_insideWords->setObjectName("List2a");
  m_outsideWords = new QListWidget(m_clueFrame);
  m_outsideWords->setObjectName("List2b");
  for (QListWidget* list : {m_insideWords, m_outsideWords}) {
    list->setFocusPolicy(Qt::NoFocus);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->hide();
  }
  clueGrid->addWidget(m_insideWords, 0, 0);
  clueGrid->addWidget(m_outsideWords, 0, 1);
  body->addWidget(m_clueFrame, 2);
  outer->addLayout(body, 1);

  // The status line: the status text, then the collection and the dictionary.
  m_status = new QLabel(this);
  m_status->setObjectName("Statx");
  m_status->setMinimumWidth(260);
  statusBar()->addWidget(m_status, 1);
  m_fileLabel = new QLabel(this);
  m_fileLabel->setObjectName("lblfile");
  statusBar()->addPermanentWidget(m_fileLabel);
  m_dictionaryLabel = new QLabel(this);
  m_dictionaryLabel->setObjectName("lbldict");
  statusBar()->addPermanentWidget(m_dictionaryLabel);

  m_startTimer = new QTimer(this);
  m_startTimer->setObjectName("Timer1");
  m_startTimer->setSingleShot(true);
  m_startTimer->setInterval(0);
  connect(m_startTimer, &QTimer::timeout, this, [this] { paint(m_session.startStep()); });
  resize(1180, 760);
}

void MainWindow::buildMenus() {
  m_fileMenu = menuBar()->addMenu("&File");
  m_fileMenu->setObjectName("mnufile");
  auto add = [this](QMenu* menu, const QString& name, const QString& text, auto slot,
                    const QKeySequence& shortcut = {}) {
    QAction* action = menu->addAction(text);
    action->setObjectName(name);
    if (!shortcut.isEmpty()) action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, slot);
    return action;
  };
  // A menu entry that runs a session command and paints its result.
  auto command = [this, add](QMenu* menu, const QString& name, const QString& text, auto run,
                             const QKeySequence& shortcut = {}) {
    return add(
        menu, name, text, [this, run] { paint(run(m_session)); }, shortcut);
  };
  command(m_fileMenu, "mnuloaddict", "Load a Dictionary", std::mem_fn(&GameSession::chooseDictionary));
  command(m_fileMenu, "mnuloadpuzfile", "Load Puzzle file", std::mem_fn(&GameSession::loadCollection),
          QKeySequence::Open);
  add(m_fileMenu, "mnuoptions", "Edit Options", &MainWindow::editOptions);
  command(m_fileMenu, "mnusaveopts", "Save Options", std::mem_fn(&GameSession::saveOptions));
  QAction* print = m_fileMenu->addAction("Print Puzzle File");
  print->setObjectName("mnuprint");
  print->setShortcut(QKeySequence::Print);
  // The recent files follow; their own separator shows only with them.
  for (int i = 0; i < Settings::kRecentFiles; ++i) {
    m_recentActions[i] = m_fileMenu->addAction(QString());
    m_recentActions[i]->setObjectName(QString("mnuoldfiles%1").arg(i));
    m_recentActions[i]->setVisible(false);
    connect(m_recentActions[i], &QAction::triggered, this, [this, i] { paint(m_session.openRecent(i)); });
  }
  m_recentSeparator = m_fileMenu->addSeparator();
  m_recentSeparator->setObjectName("mnuoldfiles5");
  m_recentSeparator->setVisible(false);
  add(m_fileMenu, "mnuhelp", "Help", &MainWindow::showHelp, QKeySequence::HelpContents);
  add(m_fileMenu, "mnuabout", "About", &MainWindow::showAbout);
  command(m_fileMenu, "cmdexitx", "Exit", std::mem_fn(&GameSession::exit), QKeySequence::Quit);

  m_puzzleMenu = menuBar()->addMenu("&Puzzle");
  m_puzzleMenu->setObjectName("mnupuzzle");
  m_createAction = command(m_puzzleMenu, "mnucreate", "Create", std::mem_fn(&GameSession::create), QKeySequence::New);
  command(m_puzzleMenu, "mnusave", "Save", std::mem_fn(&GameSession::savePuzzle), QKeySequence::Save);
  command(m_puzzleMenu, "mnureset", "Reset", std::mem_fn(&GameSession::reset));
  m_puzzleMenu->addSeparator();
  command(
      m_puzzleMenu, "mnuprevious", "&Previous puzzle", [](GameSession& s) { return s.arrow(0, 1); },
      QKeySequence(Qt::Key_PageUp));
  command(
      m_puzzleMenu, "mnunext", "&Next puzzle", [](GameSession& s) { return s.arrow(2, 1); },
      QKeySequence(Qt::Key_PageDown));
  command(m_puzzleMenu, "mnurandom", "Ra&ndom puzzle", [](GameSession& s) { return s.arrow(1, 1); });
  command(
      m_puzzleMenu, "mnuundo", "&Undo", [](GameSession& s) { return s.undo(1); }, QKeySequence::Undo);
  m_puzzleMenu->addSeparator();
  command(
      m_puzzleMenu, "mnuzoomin", "Zoom &in", [](GameSession& s) { return s.zoom(1); }, QKeySequence::ZoomIn);
  command(
      m_puzzleMenu, "mnuzoomout", "Zoom &out", [](GameSession& s) { return s.zoom(0); }, QKeySequence::ZoomOut);
  // Escape stops a puzzle being made; at other times it belongs to the board.
  m_cancelAction = new QAction("Cancel puzzle creation", this);
  m_cancelAction->setObjectName("mnucancel");
  m_cancelAction->setShortcut(Qt::Key_Escape);
  m_cancelAction->setEnabled(false);
  addAction(m_cancelAction);
  connect(m_cancelAction, &QAction::triggered, this, [this] { paint(m_session.cancelCreation()); });
  command(
      m_puzzleMenu, "mnuzoomreset", "Reset &zoom", [](GameSession& s) { return s.zoom(2); },
      QKeySequence(Qt::CTRL | Qt::Key_0));
  new OutputCommands(*this);  // printing, copying and the collection tools; the window owns it
}

void MainWindow::closeEvent(QCloseEvent* event) {
  // Closing by the window frame ends the program without saving settings;
  // the player's letters are kept however it closes.
  if (m_session.creating()) paint(m_session.cancelCreation());
  paint(m_session.saveProgress());
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window != this && window->isVisible()) window->close();
  }
  event->accept();
}

QString MainWindow::statusText() const { return m_status->text(); }

void MainWindow::setStatus(const QString& text) { m_status->setText(text); }

}  // namespace combwise

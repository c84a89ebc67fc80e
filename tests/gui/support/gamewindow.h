// A running game window for window tests: its program folder, scripted
// answers and file choices, and the ways a player reaches its controls.
#pragma once

#include <QAction>
#include <QtTest>
#include <memory>

#include "fakeprompter.h"
#include "gamefolder.h"
#include "gui/app/mainwindow.h"
#include "gui/play/boardpicture.h"
#include "gui/ui/boxcontrol.h"

namespace combwise::testing {

template <typename Answers = FakePrompter>
struct GameWindow {
  GameFolder folder;
  Answers prompter;
  FakeFileChooser files;
  std::unique_ptr<MainWindow> window;

  // The first `count` readymade puzzles of `size`, showing puzzle `number`.
  void configure(int number, const QString& size = "7", int count = 10) {
    folder.writeConfig(folder.writeCollection("ten.txt", GameFolder::readymade(size).mid(0, count)), number);
  }
  bool start() {
    window = std::make_unique<MainWindow>(folder.folder(), WindowServices{&prompter, &files});
    window->show();
    if (!QTest::qWaitForWindowActive(window.get())) return false;
    // The pointer starts on the window's corner: a move to where it already
    // is would reach nothing.
    QTest::mouseMove(window.get(), QPoint(1, 1));
    return QTest::qWaitFor([this] { return window->startedUp(); });
  }

  template <typename T>
  T* find(const QString& name) const {
    return window->findChild<T*>(name);
  }
  void trigger(const QString& name) const { find<QAction>(name)->trigger(); }
  void click(const QString& name, Qt::MouseButton mouse = Qt::LeftButton) const {
    QTest::mouseClick(find<BoxControl>(name), mouse);
  }
  QString status() const { return window->statusText(); }
  const PuzzleState& puzzle() const { return window->puzzle(); }
  QString entry(int row, int col) const { return QString::fromStdString(puzzle().Entries.at(row, col)); }

  // Rests the pointer on the centre of a grid cell of the board picture.
  void select(int row, int col) const {
    const BoardLayout& l = window->layout();
    const QPoint centre(qRound((l.cellX(row, col) + l.CellWidth / 2.0) / l.TwipsPerPixelX),
                        qRound((l.cellY(row, col) + l.CellHeight / 2.0) / l.TwipsPerPixelY));
    QTest::mouseMove(window->boardPicture(), centre);
  }
  // A key (a letter or a Qt::Key) as the player types it: to whichever
  // widget has the keyboard.
  template <typename Key>
  void press(Key key, Qt::KeyboardModifiers modifiers = {}) const {
    QTest::keyClick(window->windowHandle(), key, modifiers);
  }
};

}  // namespace combwise::testing

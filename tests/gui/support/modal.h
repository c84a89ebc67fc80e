// Acting on a modal window as a user would, once it is up.
#pragma once

#include <QApplication>
#include <QTimer>
#include <QtTest>
#include <functional>

namespace combwise::testing {

// Call just before the call that opens the window: `act` runs on the modal
// window once it shows, and the window is closed if `act` left it open. The
// act only records what it sees: a failed check inside it would leave the
// modal window open for ever.
inline void onModal(std::function<void(QWidget&)> act) {
  QTimer::singleShot(0, [act = std::move(act)] {
    if (!QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; })) return;
    QWidget* modal = QApplication::activeModalWidget();
    act(*modal);
    if (modal->isVisible()) modal->close();
  });
}

}  // namespace combwise::testing

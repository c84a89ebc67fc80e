// The main window opens empty and closes.
#include <QTemporaryDir>
#include <QtTest>

#include "gui/app/mainwindow.h"

namespace combwise {

class TestMainWindow : public QObject {
  Q_OBJECT

 private slots:
  void opensWithoutAPuzzleAndCloses() {
    QTemporaryDir home;
    QVERIFY(home.isValid());
    MainWindow window((home.path() + "/").toStdString());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.objectName(), QString("Form1"));
    QCOMPARE(window.puzzle().PuzzleSize, -1);
    QCOMPARE(window.board().size(), -1);
    QVERIFY(window.close());
    QVERIFY(!window.isVisible());
  }
};

}  // namespace combwise

QTEST_MAIN(combwise::TestMainWindow)
#include "tst_mainwindow.moc"

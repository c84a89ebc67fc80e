// The owner-drawn button's press and click, the file-name dialog's cancel
// and choice, driven without a human, and the help window.
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QtTest>
#include <functional>
#include <optional>

#include "gui/ui/boxcontrol.h"
#include "gui/ui/fndialog.h"
#include "gui/ui/helpform.h"
#include "support/modal.h"

namespace combwise {

class TestControls : public QObject {
  Q_OBJECT

  // Runs act on the file dialog once it is up; returns what ShowDialog gave,
  // or nothing when no file dialog came up.
  static std::optional<QString> driveDialog(FNDialog& dialog, const QString& mode,
                                            std::function<void(QFileDialog*)> act) {
    bool shown = false;
    testing::onModal([act, &shown](QWidget& modal) {
      auto* fileDialog = qobject_cast<QFileDialog*>(&modal);
      shown = fileDialog != nullptr;
      if (shown) act(fileDialog);
    });
    const QString chosen = dialog.ShowDialog(mode);
    if (!shown) return std::nullopt;
    return chosen;
  }

 private slots:
  void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  // Each signal carries the mouse button: 1 left, 2 right; keys count as left.
  void pressAndClickCarryTheButtonAndNeedTheReleaseOnTheControl() {
    BoxControl button("Next");
    button.resize(80, 28);
    button.show();
    button.setFocus();
    QSignalSpy presses(&button, &BoxControl::press);
    QSignalSpy clicks(&button, &BoxControl::click);
    QTest::mousePress(&button, Qt::LeftButton);
    QCOMPARE(clicks.count(), 0);  // held: the press alone
    QTest::mouseRelease(&button, Qt::LeftButton);
    QTest::mousePress(&button, Qt::RightButton);
    QTest::mouseRelease(&button, Qt::RightButton, {}, QPoint(120, 14));  // outside: no click
    QTest::keyClick(&button, Qt::Key_Space);
    QCOMPARE(presses.count(), 3);
    QCOMPARE(presses.at(1).at(0).toInt(), 2);
    QCOMPARE(clicks.count(), 2);
    QCOMPARE(clicks.at(0).at(0).toInt(), 1);
    QCOMPARE(clicks.at(1).at(0).toInt(), 1);
  }

  // A cancelled dialog gives nothing and keeps the working folder; a typed
  // name comes back as a full path with the pattern's extension.
  void theFileDialogGivesTheChosenPathOrNothing() {
    QTemporaryDir folder;
    const QString before = QDir::currentPath();
    FNDialog dialog;
    dialog.setDefaultDir(folder.path() + "/");
    QString shownFolder;
    const auto cancelled = driveDialog(dialog, "save", [&](QFileDialog* fileDialog) {
      shownFolder = fileDialog->directory().absolutePath();
      QDir::setCurrent(QDir::tempPath());  // as a dialog may do
      fileDialog->reject();
    });
    QVERIFY(cancelled && cancelled->isEmpty());
    QCOMPARE(shownFolder, QDir(folder.path()).absolutePath());
    QCOMPARE(QDir::currentPath(), before);

    const auto saved = driveDialog(dialog, "SAVE", [&](QFileDialog* fileDialog) {
      if (auto* name = fileDialog->findChild<QLineEdit*>("fileNameEdit")) name->setText("new");
      static_cast<QDialog*>(fileDialog)->accept();
    });
    QCOMPARE(saved.value_or(""), QDir(folder.path()).absoluteFilePath("new.txt"));
  }

  void theHelpWindowSaysWhereTheMissingPageShouldBe() {
    QTemporaryDir folder;
    Form4 missing(folder.filePath("nowhere"));
    QVERIFY(!missing.loadPage());
    QVERIFY(missing.browser()->toPlainText().contains("could not be found"));
    QVERIFY(missing.browser()->toPlainText().contains(missing.pagePath()));
  }
};

}  // namespace combwise

QTEST_MAIN(combwise::TestControls)
#include "tst_controls.moc"

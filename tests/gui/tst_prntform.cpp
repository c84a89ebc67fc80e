// The print range window: ranges typed and confirmed, the message that
// refuses them, Cancel, the current puzzle, and the printer chooser.
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

#include "gui/output/printerchooser.h"
#include "gui/output/prntform.h"
#include "support/fakeprompter.h"

namespace combwise {

class TestPrntForm : public QObject {
  Q_OBJECT

 private slots:
  // What a range may be is the core's rule; the window refuses with its
  // message and stays open, or closes holding the range.
  void aRefusedRangeKeepsTheWindowOpenAndAValidOneClosesIt() {
    FakePrompter prompter;
    PrntForm form("Office", "/home/me/puzzles.txt", 20, prompter, {});
    form.show();
    auto* text1 = form.findChild<QLineEdit*>("Text1");
    QTest::keyClicks(text1, "10-5");
    QVERIFY(form.findChild<QRadioButton*>("optRange")->isChecked());  // typing chooses the range
    QTest::mouseClick(form.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
    QCOMPARE(prompter.messages.size(), 1);
    QCOMPARE(prompter.messages[0].prompt, QString("Print range not correct"));
    QVERIFY(form.isVisible());
    QVERIFY(!form.chosenRange(1));

    text1->clear();
    QTest::keyClicks(text1, "5-10");
    QTest::mouseClick(form.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
    QCOMPARE(prompter.messages.size(), 1);
    QVERIFY(!form.isVisible());
    QCOMPARE(form.chosenRange(3), (PrintRange{5, 10}));
  }

  void cancelAndCurrentPuzzle() {
    FakePrompter prompter;
    PrntForm cancelled("Office", "/p.txt", 20, prompter, {});
    cancelled.show();
    QTest::keyClicks(cancelled.findChild<QLineEdit*>("Text1"), "5-10");
    QTest::mouseClick(cancelled.findChild<QPushButton*>("cmdCancel"), Qt::LeftButton);
    QCOMPARE(cancelled.tag(), QString());
    QVERIFY(!cancelled.chosenRange(4));

    PrntForm current("Office", "/p.txt", 20, prompter, {});
    current.show();
    auto* pdf = current.findChild<QCheckBox*>("chkPdf");
    QTest::mouseClick(pdf, Qt::LeftButton, {}, QPoint(8, pdf->height() / 2));
    QTest::keyClick(&current, Qt::Key_Return);
    QCOMPARE(current.tag(), QString("Y"));
    QCOMPARE(current.chosenRange(4), (PrintRange{4, 4}));
    QVERIFY(current.saveAsPdf());
  }

  void theChooserOnlyPicksAnInstalledPrinter() {
    PrinterChooser chooser({"Office", "Hall"}, "Hall");
    auto* list = chooser.findChild<QComboBox*>("cboPrinters");
    QCOMPARE(list->count(), 2);
    QCOMPARE(chooser.chosen(), QString("Hall"));
    // Only the printer: no range, copies or Print button.
    const auto buttons = chooser.findChildren<QPushButton*>();
    QCOMPARE(buttons.size(), 2);
    for (QPushButton* button : buttons) QVERIFY(!button->text().contains("Print"));
  }
};

}  // namespace combwise

QTEST_MAIN(combwise::TestPrntForm)
#include "tst_prntform.moc"

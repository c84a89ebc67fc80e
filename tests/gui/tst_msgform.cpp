// The message box driven like a user: buttons released with the mouse,
// Enter on a focused button, keys that must not close it, its size, and the
// prompter that owns it.
#include <QLabel>
#include <QMessageBox>
#include <QTimer>
#include <QtTest>
#include <functional>

#include "gui/ui/boxcontrol.h"
#include "gui/ui/dialogservices.h"
#include "gui/ui/msgform.h"
#include "support/modal.h"

namespace combwise {

class TestMsgForm : public QObject {
  Q_OBJECT

  static constexpr int kNeverActive = -1;

  // Shows the box modally and, once it is up, acts on it as a user would;
  // returns the box's answer, or kNeverActive when it never became active.
  // The act only records what it sees: a failed check inside it would leave
  // the modal box open for ever.
  static int answer(MsgForm& form, const QString& prompt, const QString& style, std::function<void()> act) {
    bool active = false;
    QTimer::singleShot(0, &form, [&form, &active, act] {
      active = QTest::qWaitForWindowActive(&form);
      if (active) act();
      if (form.isVisible()) QTest::mouseClick(form.button(0), Qt::LeftButton);
    });
    const int result = form.ShowMessage(prompt, style);
    return active ? result : kNeverActive;
  }

 private slots:
  // Neither a release beside the button, nor Escape, Space, letters or the
  // close box end the box; Enter chooses the focused button, not the first.
  void onlyAReleaseOnAButtonOrEnterOnItCloses() {
    MsgForm form;
    bool stillOpen = false;
    QWidget* focused = nullptr;
    const int result = answer(form, "Reset puzzle?", "vbquestion+vbyesno", [&] {
      focused = QApplication::focusWidget();
      for (Qt::Key key : {Qt::Key_Escape, Qt::Key_Space, Qt::Key_Y, Qt::Key_N})
        QTest::keyClick(QApplication::focusWidget(), key);
      BoxControl* no = form.button(1);
      QTest::mousePress(no, Qt::LeftButton);
      QTest::mouseRelease(no, Qt::LeftButton, {}, QPoint(no->width() + 30, no->height() / 2));
      QTest::keyClick(&form, Qt::Key_Escape);
      form.close();
      stillOpen = form.isVisible();
      no->setFocus();
      QTest::keyClick(no, Qt::Key_Return);
    });
    QCOMPARE(focused, form.button(0));
    QVERIFY(stillOpen);
    QCOMPARE(result, 7);
  }

  // The arrangement itself is the core's; the box measures its text with
  // the label's font and shows only the style's buttons and icons.
  void theBoxGrowsWithItsLinesAndShowsOnlyTheStylesButtonsAndIcons() {
    MsgForm form;
    form.prepareMessage("One line", "vbok");
    const int oneLabel = form.label()->height();
    const int oneForm = form.height();
    QVERIFY(!form.button(0)->isHidden() && form.button(1)->isHidden());

    form.prepareMessage("First\r\nSecond\nThird\rFourth", "vbquestion+vbexclamation+vbyesno");
    const QLabel* label = form.label();
    QVERIFY(label->height() - oneLabel >= 3 * QFontMetrics(label->font()).lineSpacing() - 1);
    QCOMPARE(form.height() - oneForm, label->height() - oneLabel);
    QVERIFY(form.button(0)->y() > label->geometry().bottom());
    QCOMPARE(form.button(0)->Caption() + form.button(1)->Caption(), QString("YesNo"));
    QVERIFY(!form.button(1)->isHidden() && form.button(2)->isHidden());
    for (int i = 0; i < kMessageIconCount; ++i) QCOMPARE(!form.icon(i)->isHidden(), i <= 1);
    QVERIFY(!form.icon(1)->pixmap().isNull());
  }

  void thePrompterKeepsOneBoxAndAsksPlainQuestions() {
    QWidget window;
    WindowPrompter prompter(&window);
    MsgForm* box = &prompter.messageForm();
    bool boxActive = false;
    QTimer::singleShot(0, box, [box, &boxActive] {
      boxActive = QTest::qWaitForWindowActive(box);
      QTest::mouseClick(box->button(1), Qt::LeftButton);
    });
    QCOMPARE(prompter.ShowMessage("Exit?", "vbQuestion + vbYesNo"), 7);  // released on No
    QVERIFY(boxActive);
    QVERIFY(!box->isVisible());
    QCOMPARE(&prompter.messageForm(), box);

    // The plain Yes/No question keeps the file when Enter is pressed.
    bool asked = false;
    testing::onModal([&asked](QWidget& modal) {
      if (auto* question = qobject_cast<QMessageBox*>(&modal)) {
        asked = true;
        QTest::keyClick(question, Qt::Key_Return);
      }
    });
    QVERIFY(!prompter.confirm("Overwrite clues.txt?"));
    QVERIFY(asked);
  }
};

}  // namespace combwise

QTEST_MAIN(combwise::TestMsgForm)
#include "tst_msgform.moc"

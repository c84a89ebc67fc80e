// Painting a window from a scheme: which colour each kind of control takes,
// readable texts on dark colours, and what is left alone.
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

#include "gui/ui/boxcontrol.h"
#include "gui/ui/schemepainter.h"

namespace combwise {

class TestSchemePainter : public QObject {
  Q_OBJECT

 private slots:
  void controlsTakeTheirSchemeColoursWithReadableText() {
    QWidget window;
    auto* label = new QLabel("Clues", &window);
    auto* edit = new QLineEdit(&window);
    auto* box = new BoxControl("Apply", &window);
    auto* swatch = new QLabel(&window);
    swatch->setProperty("schemeRole", "keep");
    QPalette green = swatch->palette();
    green.setColor(QPalette::Window, Qt::green);
    swatch->setPalette(green);
    auto* owned = new QDialog(&window);
    auto* ownedLabel = new QLabel("other window", owned);
    const QPalette ownedBefore = ownedLabel->palette();

    ColourScheme night;
    night.name = "night.col";
    night[2] = rgb(45, 45, 52);
    night[3] = rgb(37, 37, 43);
    night[4] = rgb(62, 62, 72);
    night[13] = rgb(250, 250, 250);  // the button override wins
    applyScheme(&window, night);

    QCOMPARE(window.palette().color(QPalette::Window), QColor(37, 37, 43));
    QCOMPARE(label->palette().color(QPalette::Window), QColor(45, 45, 52));
    QCOMPARE(label->palette().color(QPalette::WindowText), QColor(Qt::white));
    QCOMPARE(edit->palette().color(QPalette::Base), QColor(250, 250, 250));
    QCOMPARE(edit->palette().color(QPalette::Text), QColor(Qt::black));
    QCOMPARE(box->BackColor(), QColor(250, 250, 250));
    QCOMPARE(box->ForeColor(), QColor(Qt::black));
    QCOMPARE(swatch->palette().color(QPalette::Window), QColor(Qt::green));
    QCOMPARE(ownedLabel->palette(), ownedBefore);

    // A default scheme never paints the window's background.
    night.name = "MyDefault.col";
    night[3] = rgb(200, 0, 0);
    applyScheme(&window, night);
    QVERIFY(window.palette().color(QPalette::Window) != QColor(200, 0, 0));
    QCOMPARE(label->palette().color(QPalette::Window), QColor(45, 45, 52));
  }
};

}  // namespace combwise

QTEST_MAIN(combwise::TestSchemePainter)
#include "tst_schemepainter.moc"

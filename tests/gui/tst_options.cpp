// The options window: scheme choice and its missing-scheme notice, the
// font list, and Apply handing over what the samples and colour labels took.
#include <QComboBox>
#include <QFile>
#include <QFontDatabase>
#include <QLabel>
#include <QListWidget>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include "core/files/boardoptions.h"
#include "core/files/config.h"
#include "gui/ui/boxcontrol.h"
#include "gui/ui/colpik.h"
#include "gui/ui/form2.h"
#include "support/fakeprompter.h"

namespace combwise {

class TestOptions : public QObject {
  Q_OBJECT

 private:
  QString folder() const { return m_home.path() + "/"; }
  template <typename T>
  T* child(QWidget& form, const char* name) {
    auto* found = form.findChild<T*>(name);
    if (!found) qFatal("no control %s", name);
    return found;
  }

  QTemporaryDir m_home;
  Settings m_settings;
  ColourScheme m_scheme;
  FakePrompter m_prompter;

 private slots:
  void init() {
    QFile file(folder() + "all.col");
    QVERIFY(file.open(QIODevice::WriteOnly));
    QByteArray text = "xp.col\r\n";
    for (int i = 0; i < 13; ++i) text += "236;233;216\r\n";
    text += "night.col\r\n";
    for (int i = 0; i < 13; ++i) text += QByteArray::number(30 + i) + ";30;36\r\n";
    file.write(text);
    m_settings = startupSettings();
    m_scheme = ColourScheme{};
    m_prompter = FakePrompter{};
  }

  void choosingASchemeShowsItsBackgroundOrTellsItIsMissing() {
    Form2 form(m_settings, m_scheme, folder(), m_prompter);
    auto* combo = child<QComboBox>(form, "cmbScheme");
    QCOMPARE(combo->count(), 2);
    QCOMPARE(combo->currentText(), QString("xp"));
    form.chooseScheme("night");
    QCOMPARE(form.picker()->BackColor(), QColor(32, 30, 36));
    QVERIFY(m_prompter.notices.isEmpty());
    form.chooseScheme("gone");
    // The notice names the scheme file that lacks it.
    QCOMPARE(m_prompter.notices,
             QStringList{"Color Scheme: gone.col not found\n" + folder() + "all.col holds no scheme gone.col"});
    QCOMPARE(form.picker()->BackColor(), QColor(0, 0, 0));
    QCOMPARE(m_scheme, ColourScheme{});  // the window's scheme waits for Apply
  }

  void theFontListLeavesOutSymbolFontsAndFontsWithoutLatinLetters() {
    Form2 form(m_settings, m_scheme, folder(), m_prompter);
    const auto* list = child<QListWidget>(form, "lstFonts");
    QStringList listed;
    for (int i = 0; i < list->count(); ++i) listed << list->item(i)->text();
    QVERIFY(!listed.isEmpty());
    int leftOut = 0;
    for (const QString& family : QFontDatabase::families()) {
      const auto systems = QFontDatabase::writingSystems(family);
      const bool letters = systems.contains(QFontDatabase::Latin) && !systems.contains(QFontDatabase::Symbol);
      QVERIFY2(listed.contains(family) == letters, qPrintable(family));
      leftOut += letters ? 0 : 1;
    }
    if (leftOut == 0) QSKIP("no symbol fonts installed to leave out");
  }

  void applyHandsOverTheChoice() {
    Form2 form(m_settings, m_scheme, folder(), m_prompter);
    form.show();
    QSignalSpy applied(&form, &Form2::applied);
    auto* combo = child<QComboBox>(form, "cmbScheme");
    combo->setCurrentIndex(combo->findText("night"));
    form.chooseScheme("night");
    form.picker()->setBackColor(QColor(1, 2, 3));
    QTest::mouseClick(child<QLabel>(form, "lblFillColour"), Qt::LeftButton);
    QTest::mouseClick(child<QLabel>(form, "lblBorder"), Qt::LeftButton);
    auto* font = child<QLabel>(form, "lblFont");
    form.chooseFont("Courier New");
    QTest::mouseClick(font, Qt::LeftButton);
    QTest::mouseClick(child<BoxControl>(form, "cmdApply"), Qt::LeftButton);

    QCOMPARE(applied.count(), 1);
    QCOMPARE(m_settings.OutlineWidth, 2);  // the game takes the choice, not the window
    applyOptions(form.choice(), m_settings, m_scheme);
    QCOMPARE(m_settings.schemeName, std::string("night.col"));
    QCOMPARE(m_scheme[4], rgb(34, 30, 36));  // the new scheme's own buttons
    QCOMPARE(m_settings.HexFillColour, rgb(1, 2, 3));
    QCOMPARE(m_settings.OutlineWidth, 3);
    QCOMPARE(m_settings.BoardFontSize, 11);
    QCOMPARE(m_settings.boardFontName, std::string("Courier New"));
  }
};

}  // namespace combwise

QTEST_MAIN(combwise::TestOptions)
#include "tst_options.moc"

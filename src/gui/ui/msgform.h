// MsgForm: the program's own modal message box. A prompt and a style text
// ("vbquestion+vbyesno") choose its icons and buttons; it returns the code
// of the button chosen (Ok 1, Cancel 2, Abort 3, Retry 4, Ignore 5, Yes 6,
// No 7). It closes only through its buttons: a mouse release over one, or
// Enter while one has the focus. Every other key is swallowed, and the
// window's close box is ignored, so a caller always gets a button's code.
#pragma once

#include <QColor>
#include <QDialog>
#include <QList>

#include "core/play/messagebox.h"

class QLabel;
class QLineEdit;

namespace combwise {

class BoxControl;

class MsgForm : public QDialog {
  Q_OBJECT

 public:
  explicit MsgForm(QWidget* parent = nullptr);

  // Shows the box modally and returns the chosen button's code.
  int ShowMessage(const QString& prompt, const QString& style);
  void ShowMessage(const QString& prompt, const QString& style, int& result) { result = ShowMessage(prompt, style); }

  // Fills the box for a message without showing it: what ShowMessage does
  // before it waits (for tests and for show()-based use).
  void prepareMessage(const QString& prompt, const QString& style);
  // The code of the last button chosen; it stays between calls.
  int result() const { return m_result; }

  // The colour scheme's colours: buttons, background and prompt text.
  void setColours(const QColor& button, const QColor& background, const QColor& text);
  // The scheme's table of fourteen colours, for the buttons' fallback when
  // the button colour is black: entry 4 (buttons and text boxes), or entry
  // 2 (window background) when that is black too.
  void setSchemeTable(const QList<QColor>& table);
  QColor buttonColour() const { return m_buttonColour; }

  // The design in twips, and the screen's twips per pixel at this form.
  static MessageBoxDesign design();
  double twipsPerPixel() const;

  QLabel* label() const { return m_label; }
  BoxControl* button(int index) const { return m_cmd.value(index); }
  QLabel* icon(int index) const { return m_icons.value(index); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 public slots:
  void reject() override;

 private:
  void applyColoursAndFont(const QString& prompt);
  void arrangeBox(int lastButtonIndex);
  void choose(int index);
  int toPixels(int twips) const;

  QLabel* m_label = nullptr;    // Label1
  QList<QLabel*> m_icons;       // icons0..icons10
  QList<BoxControl*> m_cmd;     // cmd0..cmd2
  QList<int> m_tags;            // each button's result code
  QLineEdit* m_text = nullptr;  // Text1, hidden in message mode
  QColor m_buttonColour;
  QList<QColor> m_schemeTable;
  int m_result = 0;
};

}  // namespace combwise

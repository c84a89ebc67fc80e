// Form2, "Combwise Options": the colour scheme, the five board colours
// (chosen on the picker, then given to a colour label by a click), the
// hexagon border width, and the board font and size. It shows the game's
// settings and scheme and keeps its own choice until Apply, which emits
// applied() for the window to take choice() into the game and repaint.
#pragma once

#include <QDialog>
#include <QString>
#include <array>

#include "core/files/boardoptions.h"
#include "core/files/colourscheme.h"
#include "core/files/config.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;

namespace combwise {

class BoxControl;
class ColPik;
class Prompter;

class Form2 : public QDialog {
  Q_OBJECT

 public:
  // The colour labels in the order Apply hands them to the board.
  enum BoardColour { kBorder, kFixedLetters, kGrid, kUser, kHexFill, kBoardColours };

  // programFolder ends with a separator; the options' missing-scheme notice
  // goes to the prompter's plain box.
  Form2(const Settings& settings, const ColourScheme& scheme, QString programFolder, Prompter& prompter,
        QWidget* parent = nullptr);

  // Shows the game's current values (as on every activation).
  void loadFromWindow();
  // What Apply hands over: the scheme chosen and the board options.
  OptionsChoice choice() const;
  // The two play options, kept apart from the board's settings.
  void setPlayOptions(bool cleanBoard, bool noWordTwice);
  bool cleanBoardChecked() const;
  bool noWordTwiceChecked() const;

  ColPik* picker() const { return m_picker; }
  QColor boardColour(BoardColour which) const;
  int borderWidth() const { return m_borderWidth; }
  int fontSize() const { return m_fontSize; }
  QString fontName() const { return m_fontName; }

  // The options' events, as the controls raise them.
  void chooseScheme(const QString& name);
  void clickColourLabel(BoardColour which);
  void clickBorder(Qt::MouseButton button);
  void clickFontSample(Qt::MouseButton button);
  void chooseFont(const QString& family);
  void apply();

 signals:
  // Apply was clicked: choice() holds what to keep.
  void applied();

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void buildControls();
  void showBorder();
  void showFont();
  void showColour(BoardColour which);

  const Settings& m_settings;
  const ColourScheme& m_scheme;
  ColourScheme m_pending;  // the scheme chosen here, kept until Apply
  QString m_programFolder;
  Prompter& m_prompter;

  std::array<int, kBoardColours> m_colours{};  // in the order of BoardColour
  int m_borderWidth = kDefaultOutlineWidth;
  int m_fontSize = kDefaultBoardFontSize;
  QString m_fontName;

  QComboBox* m_cmbScheme = nullptr;
  std::array<QLabel*, kBoardColours> m_colourLabels{};
  ColPik* m_picker = nullptr;
  QLabel* m_lblBorder = nullptr;
  QLabel* m_lblFont = nullptr;
  QLabel* m_lblFontName = nullptr;
  QListWidget* m_lstFonts = nullptr;
  QCheckBox* m_chkCleanBoard = nullptr;
  QCheckBox* m_chkNoWordTwice = nullptr;
  BoxControl* m_cmdApply = nullptr;
  BoxControl* m_cmdExit = nullptr;
};

}  // namespace combwise

// PrntForm: the print range window. It shows the current printer (another
// can be chosen), the open collection, and asks for the current puzzle or a
// range of puzzle numbers; a box asks for a PDF file instead of paper, and
// a choice between the puzzle pages and a booklet for handing out (with
// its title), which Preview shows before anything is printed. Its
// tag tells how it closed: "X" while open, "Y" after a valid OK, empty after
// Cancel; Text1's tag holds a checked range as ten digits ("0000500010").
#pragma once

#include <QDialog>
#include <QString>
#include <functional>
#include <optional>

#include "core/play/printrange.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace combwise {

class Prompter;

class PrntForm : public QDialog {
  Q_OBJECT

 public:
  // Runs the platform's printer choice; the chosen printer's name, or empty
  // when the user cancels.
  using PrinterChoice = std::function<QString()>;
  // Shows the pages of a range (first = last = 0 for the current puzzle),
  // in the booklet layout or not, with the booklet's title.
  using Preview = std::function<void(PrintRange range, bool booklet, const QString& title)>;

  PrntForm(const QString& printerName, const QString& collectionPath, long long puzzleCount, Prompter& prompter,
           PrinterChoice choosePrinter, QWidget* parent = nullptr);

  QString tag() const { return m_tag; }
  QString rangeTag() const { return m_rangeTag; }
  QString printerName() const { return m_printerName; }
  bool rangeChosen() const;
  bool saveAsPdf() const;
  bool booklet() const;
  QString title() const;  // the booklet's title; empty for the default

  // The choices the window opens with (remembered from the last time).
  void setChoices(bool saveAsPdf, bool booklet, const QString& title);
  // Offers the Preview button.
  void setPreview(Preview preview);

  // After the window closed: the puzzles to print, first = last = the
  // current puzzle when it was chosen; nothing unless OK closed it.
  std::optional<PrintRange> chosenRange(int currentPuzzle) const;

 private:
  void ok();
  std::optional<PrintRange> checkedRange();  // tells what is wrong
  void cancel();
  void showPrinter(const QString& name);
  void selectPrinter();
  void reject() override;

  long long m_puzzleCount;
  Prompter& m_prompter;
  PrinterChoice m_choosePrinter;
  Preview m_preview;
  QString m_tag = "X";
  QString m_rangeTag;
  QString m_printerName;

  QLabel* m_lblPrinter = nullptr;
  QRadioButton* m_optCurrent = nullptr;
  QRadioButton* m_optRange = nullptr;
  QLineEdit* m_text1 = nullptr;
  QCheckBox* m_chkPdf = nullptr;
  QRadioButton* m_optPages = nullptr;
  QRadioButton* m_optBooklet = nullptr;
  QLineEdit* m_txtTitle = nullptr;
  QPushButton* m_cmdPreview = nullptr;
};

}  // namespace combwise

// PrntForm: the print range window. It shows the current printer (another
// can be chosen), the open collection, and asks for the current puzzle or a
// range of puzzle numbers; a box asks for a PDF file instead of paper. Its
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

  PrntForm(const QString& printerName, const QString& collectionPath, long long puzzleCount, Prompter& prompter,
           PrinterChoice choosePrinter, QWidget* parent = nullptr);

  QString tag() const { return m_tag; }
  QString rangeTag() const { return m_rangeTag; }
  QString printerName() const { return m_printerName; }
  bool rangeChosen() const;
  bool saveAsPdf() const;

  // After the window closed: the puzzles to print, first = last = the
  // current puzzle when it was chosen; nothing unless OK closed it.
  std::optional<PrintRange> chosenRange(int currentPuzzle) const;

 private:
  void ok();
  void cancel();
  void selectPrinter();
  void reject() override;

  long long m_puzzleCount;
  Prompter& m_prompter;
  PrinterChoice m_choosePrinter;
  QString m_tag = "X";
  QString m_rangeTag;
  QString m_printerName;

  QLabel* m_lblPrinter = nullptr;
  QRadioButton* m_optCurrent = nullptr;
  QRadioButton* m_optRange = nullptr;
  QLineEdit* m_text1 = nullptr;
  QCheckBox* m_chkPdf = nullptr;
};

}  // namespace combwise

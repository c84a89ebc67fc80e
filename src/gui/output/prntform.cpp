// PrntForm: the controls, the range check on OK, and the printer choice.
#include "gui/output/prntform.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <utility>

#include "gui/ui/prompter.h"

namespace combwise {

PrntForm::PrntForm(const QString& printerName, const QString& collectionPath, long long puzzleCount, Prompter& prompter,
                   PrinterChoice choosePrinter, QWidget* parent)
    : QDialog(parent),
      m_puzzleCount(puzzleCount),
      m_prompter(prompter),
      m_choosePrinter(std::move(choosePrinter)),
      m_printerName(printerName) {
  setObjectName("PrntForm");
  setWindowTitle("Print Puzzles");
  setModal(true);

  auto* frame = new QGroupBox("Printers", this);
  frame->setObjectName("Frame1");
  auto* lblCurrent = new QLabel("Current printer", frame);
  lblCurrent->setObjectName("lblCurrent");
  m_lblPrinter = new QLabel(printerName, frame);
  m_lblPrinter->setObjectName("lblPrinter");
  m_lblPrinter->setToolTip(printerName);
  m_lblPrinter->setFrameShape(QFrame::StyledPanel);
  m_lblPrinter->setMinimumWidth(220);
  auto* cmdSelect = new QPushButton("Select a printer", frame);
  cmdSelect->setObjectName("cmdSelect");
  cmdSelect->setAutoDefault(false);
  connect(cmdSelect, &QPushButton::clicked, this, &PrntForm::selectPrinter);
  auto* printerGrid = new QGridLayout(frame);
  printerGrid->addWidget(lblCurrent, 0, 0);
  printerGrid->addWidget(m_lblPrinter, 0, 1);
  printerGrid->addWidget(cmdSelect, 0, 2);
  printerGrid->setColumnStretch(1, 1);

  auto* fraPuzzles = new QGroupBox("Puzzles", this);
  fraPuzzles->setObjectName("fraPuzzles");
  auto* lblPath = new QLabel(collectionPath, fraPuzzles);
  lblPath->setObjectName("lblPath");
  lblPath->setToolTip(collectionPath);
  auto* lblCount = new QLabel(QString("%1 puzzles").arg(puzzleCount), fraPuzzles);
  lblCount->setObjectName("lblCount");
  m_optCurrent = new QRadioButton("&Current puzzle", fraPuzzles);
  m_optCurrent->setObjectName("optCurrent");
  m_optCurrent->setChecked(true);
  m_optRange = new QRadioButton("&Range of puzzles", fraPuzzles);
  m_optRange->setObjectName("optRange");
  m_text1 = new QLineEdit(fraPuzzles);
  m_text1->setObjectName("Text1");
  m_text1->setToolTip("Enter range like 5-10");
  m_text1->setPlaceholderText("5-10");
  m_text1->setMaximumWidth(120);
  // Typing a range means printing one.
  connect(m_text1, &QLineEdit::textEdited, m_optRange, [this] { m_optRange->setChecked(true); });
  m_chkPdf = new QCheckBox("Save as &PDF file instead", fraPuzzles);
  m_chkPdf->setObjectName("chkPdf");
  m_chkPdf->setToolTip("Write the pages to a PDF file rather than the printer");
  auto* puzzleGrid = new QGridLayout(fraPuzzles);
  auto* pathRow = new QHBoxLayout;
  pathRow->addWidget(lblPath, 1);
  pathRow->addWidget(lblCount);
  puzzleGrid->addLayout(pathRow, 0, 0, 1, 3);
  puzzleGrid->addWidget(m_optCurrent, 1, 0, 1, 3);
  puzzleGrid->addWidget(m_optRange, 2, 0);
  puzzleGrid->addWidget(m_text1, 2, 1);
  puzzleGrid->setColumnStretch(2, 1);
  puzzleGrid->addWidget(m_chkPdf, 3, 0, 1, 3);

  auto* buttons = new QDialogButtonBox(this);
  auto* cmdOK = buttons->addButton("OK", QDialogButtonBox::AcceptRole);
  cmdOK->setObjectName("cmdOK");
  cmdOK->setDefault(true);
  auto* cmdCancel = buttons->addButton("Cancel", QDialogButtonBox::RejectRole);
  cmdCancel->setObjectName("cmdCancel");
  connect(cmdOK, &QPushButton::clicked, this, &PrntForm::ok);
  connect(cmdCancel, &QPushButton::clicked, this, &PrntForm::cancel);

  auto* form = new QVBoxLayout(this);
  form->addWidget(frame);
  form->addWidget(fraPuzzles);
  form->addWidget(buttons);
  form->setSizeConstraint(QLayout::SetFixedSize);
}

bool PrntForm::rangeChosen() const { return m_optRange->isChecked(); }

bool PrntForm::saveAsPdf() const { return m_chkPdf->isChecked(); }

std::optional<PrintRange> PrntForm::chosenRange(int currentPuzzle) const {
  if (m_tag != "Y") return std::nullopt;
  if (!rangeChosen()) return PrintRange{currentPuzzle, currentPuzzle};
  return rangeFromTag(m_rangeTag.toStdString());
}

void PrntForm::ok() {
  if (rangeChosen()) {
    const PrintRangeCheck check = checkPrintRange(m_text1->text().toStdString(), m_puzzleCount);
    if (!check.ok()) {
      m_prompter.ShowMessage(QString::fromStdString(check.message),
                             QString::fromUtf8(kPrintRangeStyle.data(), kPrintRangeStyle.size()));
      m_text1->setFocus();
      m_text1->selectAll();
      return;
    }
    m_rangeTag = QString::fromStdString(combwise::rangeTag(*check.range));
  }
  m_tag = "Y";
  accept();
}

void PrntForm::cancel() {
  m_tag.clear();
  QDialog::reject();
}

// Escape and the window's close button cancel as the Cancel button does.
void PrntForm::reject() { cancel(); }

void PrntForm::selectPrinter() {
  if (!m_choosePrinter) return;
  const QString chosen = m_choosePrinter();
  if (chosen.isEmpty()) return;
  m_printerName = chosen;
  m_lblPrinter->setText(chosen);
  m_lblPrinter->setToolTip(chosen);
}

}  // namespace combwise

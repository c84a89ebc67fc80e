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

#include "core/play/booklet.h"
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
  m_lblPrinter = new QLabel(frame);
  m_lblPrinter->setObjectName("lblPrinter");
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

  auto* fraLayout = new QGroupBox("Layout", this);
  fraLayout->setObjectName("fraLayout");
  m_optPages = new QRadioButton("P&uzzle pages: each puzzle with its solution below", fraLayout);
  m_optPages->setObjectName("optPages");
  m_optPages->setChecked(true);
  m_optBooklet = new QRadioButton("&Booklet: each puzzle with its clues, answer keys at the end", fraLayout);
  m_optBooklet->setObjectName("optBooklet");
  auto* lblTitle = new QLabel("&Title", fraLayout);
  m_txtTitle = new QLineEdit(fraLayout);
  m_txtTitle->setObjectName("txtTitle");
  m_txtTitle->setPlaceholderText(kBookletTitle);
  m_txtTitle->setToolTip("The title at the top of each booklet page");
  lblTitle->setBuddy(m_txtTitle);
  m_txtTitle->setEnabled(false);
  connect(m_optBooklet, &QRadioButton::toggled, m_txtTitle, &QLineEdit::setEnabled);
  auto* layoutGrid = new QGridLayout(fraLayout);
  layoutGrid->addWidget(m_optPages, 0, 0, 1, 2);
  layoutGrid->addWidget(m_optBooklet, 1, 0, 1, 2);
  layoutGrid->addWidget(lblTitle, 2, 0);
  layoutGrid->addWidget(m_txtTitle, 2, 1);

  auto* buttons = new QDialogButtonBox(this);
  auto* cmdOK = buttons->addButton("OK", QDialogButtonBox::AcceptRole);
  cmdOK->setObjectName("cmdOK");
  cmdOK->setDefault(true);
  auto* cmdCancel = buttons->addButton("Cancel", QDialogButtonBox::RejectRole);
  cmdCancel->setObjectName("cmdCancel");
  m_cmdPreview = buttons->addButton("Pre&view...", QDialogButtonBox::ActionRole);
  m_cmdPreview->setObjectName("cmdPreview");
  m_cmdPreview->setAutoDefault(false);
  m_cmdPreview->setVisible(false);
  connect(m_cmdPreview, &QPushButton::clicked, this, [this] {
    if (!m_preview) return;
    if (const std::optional<PrintRange> range = checkedRange()) m_preview(*range, booklet(), title());
  });
  connect(cmdOK, &QPushButton::clicked, this, &PrntForm::ok);
  connect(cmdCancel, &QPushButton::clicked, this, &PrntForm::cancel);

  auto* form = new QVBoxLayout(this);
  form->addWidget(frame);
  form->addWidget(fraPuzzles);
  form->addWidget(fraLayout);
  form->addWidget(buttons);
  form->setSizeConstraint(QLayout::SetFixedSize);
  showPrinter(printerName);
}

// Without a printer, only the PDF file is left: the window says so.
void PrntForm::showPrinter(const QString& name) {
  const QString shown = name.isEmpty() ? QString("No printer is installed") : name;
  m_lblPrinter->setText(shown);
  m_lblPrinter->setToolTip(name.isEmpty() ? "No printer is installed: the pages can be saved as a PDF file" : name);
  if (name.isEmpty()) m_chkPdf->setChecked(true);
  m_chkPdf->setEnabled(!name.isEmpty());
}

bool PrntForm::booklet() const { return m_optBooklet->isChecked(); }

QString PrntForm::title() const { return m_txtTitle->text().trimmed(); }

void PrntForm::setChoices(bool saveAsPdf, bool booklet, const QString& title) {
  if (m_chkPdf->isEnabled()) m_chkPdf->setChecked(saveAsPdf);
  (booklet ? m_optBooklet : m_optPages)->setChecked(true);
  m_txtTitle->setText(title);
}

void PrntForm::setPreview(Preview preview) {
  m_preview = std::move(preview);
  m_cmdPreview->setVisible(static_cast<bool>(m_preview));
}

bool PrntForm::rangeChosen() const { return m_optRange->isChecked(); }

bool PrntForm::saveAsPdf() const { return m_chkPdf->isChecked(); }

std::optional<PrintRange> PrntForm::chosenRange(int currentPuzzle) const {
  if (m_tag != "Y") return std::nullopt;
  if (!rangeChosen()) return PrintRange{currentPuzzle, currentPuzzle};
  return rangeFromTag(m_rangeTag.toStdString());
}

std::optional<PrintRange> PrntForm::checkedRange() {
  // The current puzzle is given by the window; 0 stands for it here.
  if (!rangeChosen()) return PrintRange{0, 0};
  const PrintRangeCheck check = checkPrintRange(m_text1->text().toStdString(), m_puzzleCount);
  if (!check.ok()) {
    m_prompter.ShowMessage(QString::fromStdString(check.message),
                           QString::fromUtf8(kPrintRangeStyle.data(), kPrintRangeStyle.size()));
    m_text1->setFocus();
    m_text1->selectAll();
    return std::nullopt;
  }
  return check.range;
}

void PrntForm::ok() {
  const std::optional<PrintRange> range = checkedRange();
  if (!range) return;
  if (rangeChosen()) m_rangeTag = QString::fromStdString(combwise::rangeTag(*range));
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
  showPrinter(chosen);
}

}  // namespace combwise

// The printer chooser: the installed printers in a list, OK and Cancel.
#include "gui/output/printerchooser.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace combwise {

PrinterChooser::PrinterChooser(const QStringList& printers, const QString& current, QWidget* parent)
    : QDialog(parent), m_printers(new QComboBox(this)) {
  setObjectName("PrinterChooser");
  setWindowTitle("Select a printer");
  m_printers->setObjectName("cboPrinters");
  m_printers->addItems(printers);
  m_printers->setCurrentIndex(std::max(0, static_cast<int>(printers.indexOf(current))));
  m_printers->setMinimumWidth(260);
  auto* label = new QLabel(printers.isEmpty() ? "No printer is installed." : "&Printer:", this);
  label->setObjectName("lblChooser");
  label->setBuddy(m_printers);
  m_printers->setVisible(!printers.isEmpty());
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Ok)->setEnabled(!printers.isEmpty());
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(label);
  layout->addWidget(m_printers);
  layout->addWidget(buttons);
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

QString PrinterChooser::chosen() const { return m_printers->currentText(); }

}  // namespace combwise

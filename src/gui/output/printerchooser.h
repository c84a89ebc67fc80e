// The printer chooser of the print range window: a list of the installed
// printers and nothing else. The game decides what it prints and how many
// times, so no range, copies or Print button are offered here.
#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>

class QComboBox;

namespace combwise {

class PrinterChooser : public QDialog {
  Q_OBJECT

 public:
  // `printers` are the installed printers' names; `current` is chosen first.
  PrinterChooser(const QStringList& printers, const QString& current, QWidget* parent = nullptr);

  QString chosen() const;

 private:
  QComboBox* m_printers = nullptr;
};

}  // namespace combwise

// Where printed pages go: the printer chosen on the system, or a PDF file.
// Page drawing only sees a QPainter; this interface starts and ends the
// document, turns the page, and names and chooses the printer, so the
// commands and the command-line tool never need a human at a print dialog.
#pragma once

#include <QMarginsF>
#include <QString>
#include <string>

class QPainter;
class QWidget;

namespace combwise {

class PrintTarget {
 public:
  virtual ~PrintTarget() = default;

  // The device name shown as the current printer.
  virtual QString printerName() const = 0;
  // Lets the user pick another printer; its name, or an empty text when
  // the choice was cancelled (the printer is then unchanged).
  virtual QString choosePrinter(QWidget* parent) = 0;

  // Starts a document and returns the painter of its first page, or null
  // when the device cannot be opened. Positions are twips from the paper's
  // top-left corner, converted by the page drawing at the device's resolution.
  virtual QPainter* beginDocument() = 0;
  // Ends the current page and starts the next one.
  virtual bool newPage() = 0;
  // Ends the document, which sends it to the printer or writes the file.
  virtual bool endDocument() = 0;
  // After a failed begin or end: what went wrong, naming the file and the
  // cause where there is one; empty when nothing is known.
  virtual std::string error() const { return {}; }

  // How far in from the paper's edges the device can print, in twips.
  virtual QMarginsF printableMargins() const { return {}; }
};

}  // namespace combwise

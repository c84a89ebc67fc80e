// The busy pointer for as long as a BusyPointer lives.
#pragma once

#include <QApplication>

namespace combwise {

class BusyPointer {
 public:
  BusyPointer() { QApplication::setOverrideCursor(Qt::BusyCursor); }
  ~BusyPointer() { QApplication::restoreOverrideCursor(); }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;
};

}  // namespace combwise

// AboutForm: the program's logo, name, description and version.
#pragma once

#include <QDialog>

namespace combwise {

class AboutForm : public QDialog {
  Q_OBJECT

 public:
  explicit AboutForm(QWidget* parent = nullptr);

  static QString description();
  static QString versionText();
};

}  // namespace combwise

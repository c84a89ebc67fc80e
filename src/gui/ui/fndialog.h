// FNDialog: the file-name dialog behind a few properties and one call.
// ShowDialog("OPEN") asks for an existing file, ShowDialog("SAVE") for a
// file to write (any letter case); either returns the full path, or an
// empty text when the user cancels. The working folder is the same
// afterwards as before, whatever the dialog did to it.
#pragma once

#include <QString>

class QWidget;

namespace combwise {

class FNDialog {
 public:
  explicit FNDialog(QWidget* owner = nullptr) : m_owner(owner) {}

  QString FileTypes() const { return m_fileTypes; }
  void setFileTypes(const QString& pattern) { m_fileTypes = pattern; }
  QString FileTypesName() const { return m_fileTypesName; }
  void setFileTypesName(const QString& name) { m_fileTypesName = name; }
  QString Title() const { return m_title; }
  void setTitle(const QString& title) { m_title = title; }
  QString DefaultDir() const { return m_defaultDir; }
  void setDefaultDir(const QString& folder) { m_defaultDir = folder; }
  QString DefaultName() const { return m_defaultName; }
  void setDefaultName(const QString& name) { m_defaultName = name; }

  QString ShowDialog(const QString& mode);

  // The dialog's filter, for instance "Combwise Files (*.txt)"; patterns
  // separated by ";" ("*.txt;*.dic") are offered together.
  QString nameFilter() const;

 private:
  QWidget* m_owner;
  QString m_fileTypes = "*.txt";
  QString m_fileTypesName = "Combwise Files";
  QString m_title;
  QString m_defaultDir;
  QString m_defaultName;
};

}  // namespace combwise

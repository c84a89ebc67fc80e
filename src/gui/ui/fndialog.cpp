// FNDialog over QFileDialog.
#include "gui/ui/fndialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QRegularExpression>

namespace combwise {

namespace {

// Puts the working folder back when the dialog is done, however it ends.
class WorkingFolderGuard {
 public:
  WorkingFolderGuard() : m_folder(QDir::currentPath()) {}
  ~WorkingFolderGuard() { QDir::setCurrent(m_folder); }
  WorkingFolderGuard(const WorkingFolderGuard&) = delete;
  WorkingFolderGuard& operator=(const WorkingFolderGuard&) = delete;

 private:
  QString m_folder;
};

}  // namespace

QString FNDialog::nameFilter() const {
  QString patterns = m_fileTypes.trimmed();
  patterns.replace(QRegularExpression("\\s*;\\s*"), " ");
  if (patterns.isEmpty()) patterns = "*";
  const QString name = m_fileTypesName.trimmed().isEmpty() ? QString("Files") : m_fileTypesName.trimmed();
  return name + " (" + patterns + ")";
}

QString FNDialog::ShowDialog(const QString& mode) {
  WorkingFolderGuard keepWorkingFolder;
  const bool save = mode.trimmed().compare("SAVE", Qt::CaseInsensitive) == 0;

  QFileDialog dialog(m_owner, m_title);
  dialog.setNameFilter(nameFilter());
  // A folder given with or without its trailing separator is the same.
  if (!m_defaultDir.trimmed().isEmpty()) dialog.setDirectory(QDir::cleanPath(m_defaultDir.trimmed()));
  if (save) {
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    // Saving appends puzzles to a collection, so choosing an existing file
    // is the usual case and not a question; the window asks its own
    // question where a file would really be replaced.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    // A single pattern such as "*.txt" gives typed names its extension.
    static const QRegularExpression simplePattern("^\\*\\.(\\w+)$");
    const QRegularExpressionMatch match = simplePattern.match(m_fileTypes.trimmed());
    if (match.hasMatch()) dialog.setDefaultSuffix(match.captured(1));
  } else {
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
  }
  if (!m_defaultName.trimmed().isEmpty()) dialog.selectFile(m_defaultName.trimmed());

  if (dialog.exec() != QDialog::Accepted) return {};
  const QStringList chosen = dialog.selectedFiles();
  if (chosen.isEmpty()) return {};
  return QFileInfo(chosen.first()).absoluteFilePath();
}

}  // namespace combwise

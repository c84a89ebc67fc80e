// A program folder for window tests: a temporary folder holding the game's
// dictionary, meanings and colour schemes, made the working folder too, with
// helpers to write collections from the readymade puzzles.
#pragma once

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>
#include <QTextStream>
#include <string>

namespace combwise::testing {

class GameFolder {
 public:
  GameFolder() : m_previous(QDir::currentPath()) {
    for (const char* name : {"english3.txt", "mean3456.txt", "all.col"})
      QFile::copy(QString(COMBWISE_BIN_DIR) + "/" + name, m_dir.filePath(name));
    QDir::setCurrent(m_dir.path());
  }
  ~GameFolder() { QDir::setCurrent(m_previous); }
  GameFolder(const GameFolder&) = delete;
  GameFolder& operator=(const GameFolder&) = delete;

  std::string folder() const { return (m_dir.path() + "/").toStdString(); }
  QString path(const QString& name) const { return m_dir.filePath(name); }

  // The readymade puzzles of one size ("7", "22"), in file order.
  static QStringList readymade(const QString& size) {
    QFile file(QString(COMBWISE_BIN_DIR) + "/puzzles.txt");
    QStringList lines;
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return lines;
    while (!file.atEnd()) {
      const QString line = QString::fromLatin1(file.readLine()).trimmed();
      if (line.startsWith(size + ";")) lines << line;
    }
    return lines;
  }

  // Writes a collection of these lines (CR LF) and returns its path.
  QString writeCollection(const QString& name, const QStringList& lines) const {
    QFile file(path(name));
    if (file.open(QIODevice::WriteOnly)) {
      for (const QString& line : lines) file.write((line + "\r\n").toLatin1());
    }
    return path(name);
  }

  // A whole configuration naming a collection and puzzle number.
  void writeConfig(const QString& collection, int number) const {
    QFile file(path("combwise.cfg"));
    if (!file.open(QIODevice::WriteOnly)) return;
    QTextStream out(&file);
    out << "xp.col\r\n" << collection << "\r\n\r\nArial\r\n";
    out << " " << number << "  10  0  255  16777215  32768  15790320  2  0 \r\n";
    for (int i = 0; i < 5; ++i) out << "\r\n";
  }

 private:
  QString m_previous;
  QTemporaryDir m_dir;
};

}  // namespace combwise::testing

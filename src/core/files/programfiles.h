// Where the program reads and writes its own files. The program folder
// always serves reading (dictionary, meanings, colour schemes, help page,
// readymade puzzles). When the program folder can be written, every file
// the program writes goes there too. When it cannot (an installation in
// /usr), the files it writes go to the user's own folders instead:
// "combwise.cfg" to $XDG_CONFIG_HOME/combwise, everything else to
// $XDG_DATA_HOME/combwise; reading then looks in those folders first.
// Which of the two applies is decided once, when the object is made.
#pragma once

#include <string>
#include <string_view>

namespace combwise {

// The names of the program's own files. The program folder (or, where it
// cannot be written, the user's folders below) holds most of them; the
// readymade collection and the temporary puzzle are looked for in the
// working folder.
inline constexpr const char* kConfigFile = "combwise.cfg";
inline constexpr const char* kMeaningsFile = "mean3456.txt";
inline constexpr const char* kDefaultDictionaryFile = "english3.txt";
inline constexpr const char* kSchemeFile = "all.col";
inline constexpr const char* kErrorLogFile = "ErrorLog.txt";
inline constexpr const char* kHelpPage = "combwise.htm";
inline constexpr const char* kReadymadeCollection = "puzzles.txt";
inline constexpr const char* kTemporaryPuzzleFile = "tempcombwisepuzzle.txt";
inline constexpr const char* kBatchFile = "puz-18sepsize17D.txt";

// The user's own folders for the program, each ending with a separator.
struct UserFolders {
  std::string config;  // settings
  std::string data;    // everything else the program writes
};

// The user's folders by the XDG rules: a variable that is unset, empty or
// not an absolute path gives way to its default under `home`
// (~/.config, ~/.local/share).
UserFolders userFoldersFrom(const char* configHome, const char* dataHome, const std::string& home);

// userFoldersFrom with this process's environment; the home folder comes
// from HOME, else from the password database.
UserFolders userFolders();

// True when files can be created in the folder (it exists and the process
// may write and enter it).
bool isWritableFolder(const std::string& folder);

class ProgramFiles {
 public:
  // Decides from the program folder as it is now.
  ProgramFiles(const std::string& programFolder, UserFolders user);
  // With the decision given, for callers that know it.
  ProgramFiles(const std::string& programFolder, UserFolders user, bool programFolderWritable);

  // The program folder, ending with a separator.
  const std::string& programFolder() const { return m_programFolder; }
  // True when written files go to the user's folders.
  bool usesUserFolders() const { return m_useUserFolders; }
  const UserFolders& user() const { return m_user; }

  // Where to read `name`: the user's copy when user folders are in use and
  // it holds something, else the program folder's.
  std::string readPath(std::string_view name) const;
  // The folder readPath(name) lies in, with its separator.
  std::string readFolder(std::string_view name) const;
  // Where to write `name`. A user folder is created on the way when
  // missing (any failure is left for the write itself to report).
  std::string writePath(std::string_view name) const;
  // The folder writePath(name) lies in, with its separator.
  std::string writeFolder(std::string_view name) const;

 private:
  const std::string& userFolderFor(std::string_view name) const;

  std::string m_programFolder;
  UserFolders m_user;
  bool m_useUserFolders;
};

}  // namespace combwise

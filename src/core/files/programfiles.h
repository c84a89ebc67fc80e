// The names of the program's own files. Those in the program folder are
// joined to it (which ends with a separator); the readymade collection and
// the temporary puzzle are looked for in the working folder.
#pragma once

namespace combwise {

inline constexpr const char* kConfigFile = "combwise.cfg";
inline constexpr const char* kMeaningsFile = "mean3456.txt";
inline constexpr const char* kDefaultDictionaryFile = "english3.txt";
inline constexpr const char* kSchemeFile = "all.col";
inline constexpr const char* kErrorLogFile = "ErrorLog.txt";
inline constexpr const char* kHelpPage = "combwise.htm";
inline constexpr const char* kReadymadeCollection = "puzzles.txt";
inline constexpr const char* kTemporaryPuzzleFile = "tempcombwisepuzzle.txt";
inline constexpr const char* kBatchFile = "puz-18sepsize17D.txt";

}  // namespace combwise

// What the print range window remembers between runs, in a small file of
// its own, "combwise-print.txt": one "key=value" a line (CR LF).
//
//   save-as-pdf=on          the "Save as PDF" tick
//   pdf-folder=/home/a/out  where the last PDF file was saved
//   booklet=on              the booklet layout rather than the puzzle pages
//   title=Class 4b          the booklet's title
//
// A missing file, key or damaged line leaves the default.
#pragma once

#include <string>
#include <string_view>

#include "core/model/callbacks.h"

namespace combwise {

inline constexpr const char* kPrintChoicesFile = "combwise-print.txt";

struct PrintChoices {
  bool saveAsPdf = false;
  std::string pdfFolder;  // empty: none yet
  bool booklet = false;
  std::string title;  // empty: the booklet's default title
  friend bool operator==(const PrintChoices&, const PrintChoices&) = default;
};

std::string printChoicesText(const PrintChoices& choices);
PrintChoices parsePrintChoices(std::string_view text);

PrintChoices readPrintChoices(const std::string& path);
// Writes through a temporary file renamed over the old one.
Status writePrintChoices(const std::string& path, const PrintChoices& choices);

}  // namespace combwise

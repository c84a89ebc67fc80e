// Reads and writes the print range window's remembered choices.
#include "core/files/printchoices.h"

#include <cerrno>
#include <fstream>
#include <sstream>

#include "core/files/textfile.h"

namespace combwise {
namespace {

std::string_view withoutLineEnd(std::string_view line) {
  while (!line.empty() && (line.back() == '\r' || line.back() == '\n')) line.remove_suffix(1);
  return line;
}

bool isOn(std::string_view value) { return value == "on" || value == "yes" || value == "true" || value == "1"; }

}  // namespace

std::string printChoicesText(const PrintChoices& choices) {
  // Line breaks in a value would start a line of their own.
  const auto clean = [](std::string value) {
    for (char& c : value)
      if (c == '\r' || c == '\n') c = ' ';
    return value;
  };
  return std::string("save-as-pdf=") + (choices.saveAsPdf ? "on" : "off") + "\r\n" +
         "pdf-folder=" + clean(choices.pdfFolder) + "\r\n" + "booklet=" + (choices.booklet ? "on" : "off") + "\r\n" +
         "title=" + clean(choices.title) + "\r\n";
}

PrintChoices parsePrintChoices(std::string_view text) {
  PrintChoices choices;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const std::string_view line = withoutLineEnd(text.substr(0, end));
    text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    const std::string_view key = line.substr(0, equals);
    const std::string_view value = line.substr(equals + 1);
    if (key == "save-as-pdf") choices.saveAsPdf = isOn(value);
    if (key == "pdf-folder") choices.pdfFolder = value;
    if (key == "booklet") choices.booklet = isOn(value);
    if (key == "title") choices.title = value;
  }
  return choices;
}

PrintChoices readPrintChoices(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return {};
  std::ostringstream text;
  text << in.rdbuf();
  return parsePrintChoices(text.str());
}

Status writePrintChoices(const std::string& path, const PrintChoices& choices) {
  errno = 0;
  if (!replaceFileContent(path, printChoicesText(choices)))
    return Status::failure(fileErrorMessage("write", path, errno));
  return Status::success();
}

}  // namespace combwise

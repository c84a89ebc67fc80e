// wordconv: writes english3.txt, mean3456.txt and the WordNet licence into
// the program folder at build time.
//   wordconv WORD_LIST WORDNET_FOLDER CRUDE_WORDS OUTPUT_FOLDER
#include <chrono>
#include <cstdio>
#include <string>

#include "data/tools/textio.h"
#include "data/tools/wordconverter.h"
#include "data/tools/wordnetdata.h"

namespace {

int fail(const std::string& message) {
  std::fprintf(stderr, "wordconv: %s\n", message.c_str());
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace combwise::wordconv;
  if (argc != 5) return fail("usage: wordconv WORD_LIST WORDNET_FOLDER CRUDE_WORDS OUTPUT_FOLDER");
  const std::string wordListPath = argv[1];
  const std::string wordnetFolder = argv[2];
  const std::string crudePath = argv[3];
  const std::string outputFolder = argv[4];
  const auto start = std::chrono::steady_clock::now();

  const auto wordList = readWholeFile(wordListPath);
  if (!wordList) return fail("cannot read the word list " + wordListPath + " (Debian package wamerican)");
  std::string error;
  const auto wordnet = loadWordNet(wordnetFolder, error);
  if (!wordnet) return fail(error + " (Debian package wordnet-base)");
  const auto licenceSource = readWholeFile(wordnetFolder + "/index.noun");
  const std::vector<std::string> licence = licenceSource ? licenceLines(*licenceSource) : std::vector<std::string>{};
  if (licence.empty()) return fail("no licence text at the head of " + wordnetFolder + "/index.noun");

  const auto crudeText = readWholeFile(crudePath);
  if (!crudeText) return fail("cannot read the list of crude words " + crudePath);
  const auto crudeWords = parseCrudeWords(*crudeText, error);
  if (!crudeWords) return fail(crudePath + ": " + error);

  const Conversion conversion = convertWords(candidateWords(*wordList), *wordnet, *crudeWords);
  const auto write = [&](const std::string& name, const std::vector<std::string>& lines) {
    const std::string path = outputFolder + "/" + name;
    if (writeCrLfLines(path, lines)) return true;
    fail("cannot write " + path);
    return false;
  };
  if (!write("english3.txt", conversion.dictionary) || !write("mean3456.txt", conversion.meanings) ||
      !write("WordNet-LICENSE.txt", licence)) {
    return 1;
  }

  const auto elapsed = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  std::printf("wordconv: english3.txt and mean3456.txt written in %.2f s\n%s%s", elapsed,
              dropReport(conversion.counts).c_str(), countReport(countByLength(conversion)).c_str());
  return 0;
}

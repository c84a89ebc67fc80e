// The progress file: any content reads without failing, whatever was kept
// writes a file that reads back the same without a problem, and the store
// stays within its bounds.
#include "core/files/progressfile.h"
#include "fuzzsupport.h"

using namespace combwise;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string path = fuzz::scratchFile("combwise-progress.txt", fuzz::asText(data, size));
  const ProgressRead read = readProgressFile(path);
  fuzz::require(read.store.entries().size() <= kMaxEntryRecords, "the letters kept stay bounded");
  fuzz::require(read.store.solvedRecords().size() <= kMaxSolvedRecords, "the solved records stay bounded");

  std::vector<std::string> problems;
  const ProgressStore parsed = ProgressStore::parse(fuzz::asText(data, size), "progress", problems);
  fuzz::require(parsed == read.store, "the file and its text read the same");

  fuzz::require(writeProgressFile(path, read.store).ok(), "the progress saves");
  const ProgressRead again = readProgressFile(path);
  fuzz::require(again.problems.empty(), "a saved progress file reads cleanly");
  fuzz::require(again.store == read.store, "saved progress reads back the same");
  return 0;
}

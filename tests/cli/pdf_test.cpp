// combwise-cli pdf: the range printer's pages drawn headless into a PDF file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <sstream>

#include "cli/cli.h"
#include "support/tempfolder.h"

namespace combwise::cli {
namespace {

using ::testing::HasSubstr;

struct PdfRun {
  int status = 0;
  std::string out;
  std::string err;
};

PdfRun cli(std::vector<std::string> args) {
  args.insert(args.begin(), {"--home", COMBWISE_BIN_DIR});
  std::ostringstream out;
  std::ostringstream err;
  const int status = runCli(args, out, err);
  return {status, out.str(), err.str()};
}

std::string commandOutput(const std::string& command) {
  std::string text;
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  char buffer[4096];
  while (pipe && fgets(buffer, sizeof buffer, pipe.get())) text += buffer;
  return text;
}

int pages(const std::string& pdf) {
  const std::string info = commandOutput("pdfinfo '" + pdf + "'");
  const auto at = info.find("Pages:");
  return at == std::string::npos ? 0 : std::stoi(info.substr(at + 6));
}

TEST(CliPdf, ARangePrintsOnePageAPuzzleStoppingAtTheEndAndCluesAddAPage) {
  TempFolder temp;
  const std::string collection = temp.file("set.txt");
  ASSERT_EQ(cli({"create", "--size", "7", "--count", "3", "--seed", "5", "--output", collection}).status, 0);

  const std::string pdf = temp.file("two.pdf");
  const PdfRun two = cli({"pdf", collection, "2-9", "--output", pdf});
  EXPECT_EQ(two.status, 0) << two.err;
  EXPECT_THAT(two.out, HasSubstr("2 puzzles printed"));
  EXPECT_EQ(pages(pdf), 2);
  const std::string text = commandOutput("pdftotext '" + pdf + "' -");
  EXPECT_THAT(text, HasSubstr("Combwise Puzzle ...hexagonal crosswords - Puz# 2:" + collection));
  EXPECT_THAT(text, HasSubstr("- Puz# 3:"));

  const std::string withClues = temp.file("clues.pdf");
  EXPECT_EQ(cli({"pdf", collection, "all", "--output", withClues, "--clues"}).status, 0);
  EXPECT_EQ(pages(withClues), 6);
  EXPECT_THAT(commandOutput("pdftotext '" + withClues + "' -"), HasSubstr("OUTSIDE CLUES:"));
  EXPECT_EQ(cli({"pdf", collection, "3", "--output", pdf}).status, 0);
  EXPECT_EQ(pages(pdf), 1);
}

TEST(CliPdf, RangesThePrintWindowRefusesExitWithItsMessage) {
  TempFolder temp;
  const std::string collection = temp.file("set.txt");
  ASSERT_EQ(cli({"create", "--size", "7", "--count", "2", "--seed", "5", "--output", collection}).status, 0);
  const std::string pdf = temp.file("none.pdf");
  for (const char* range : {"5-2", "0-3", "3", "4-9"}) {
    const PdfRun refused = cli({"pdf", collection, range, "--output", pdf});
    EXPECT_EQ(refused.status, 2) << range;
    EXPECT_THAT(refused.err, HasSubstr("Print range not correct")) << range;
  }
  const PdfRun blank = cli({"pdf", collection, " ", "--output", pdf});
  EXPECT_EQ(blank.status, 2);
  EXPECT_THAT(blank.err, HasSubstr("Specify print range"));
  EXPECT_EQ(cli({"pdf", collection, "1"}).status, 2);  // no --output
  EXPECT_EQ(cli({"pdf", collection, "1", "--output", collection}).status, 1);
  EXPECT_FALSE(std::filesystem::exists(pdf));
}

}  // namespace
}  // namespace combwise::cli

// The print window's remembered choices.
#include "core/files/printchoices.h"

#include <gtest/gtest.h>

#include "support/tempfolder.h"

namespace combwise {
namespace {

TEST(PrintChoices, RoundTripAndDamagedOrMissingFilesGiveTheDefaults) {
  TempFolder temp;
  const std::string path = temp.file(kPrintChoicesFile);
  EXPECT_EQ(readPrintChoices(path), PrintChoices{});
  const PrintChoices chosen{true, "/home/a/out folder", true, "Class 4b\r\nweek 2"};
  ASSERT_TRUE(writePrintChoices(path, chosen).ok());
  const PrintChoices read = readPrintChoices(path);
  EXPECT_TRUE(read.saveAsPdf && read.booklet);
  EXPECT_EQ(read.pdfFolder, "/home/a/out folder");
  EXPECT_EQ(read.title, "Class 4b  week 2");  // a value keeps to its line
  EXPECT_EQ(parsePrintChoices("junk\nsave-as-pdf\r\nbooklet=maybe\ntitle=T=1\n"),
            (PrintChoices{false, "", false, "T=1"}));
  EXPECT_FALSE(writePrintChoices(temp.file("no/such/folder/x.txt"), chosen).ok());
}

}  // namespace
}  // namespace combwise

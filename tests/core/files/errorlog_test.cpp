// The error log: the record, the message shown, and never failing.
#include "core/files/errorlog.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>

#include "support/tempfolder.h"

namespace combwise {
namespace {

TEST(ErrorLog, WritesAnEightFieldRecord) {
  TempFolder temp;
  ::setenv("username", "alice", 1);
  ::setenv("computername", "DESK1", 1);
  ErrorLog log(temp.folder());
  log.setStamp([] { return std::string("#2024-03-05 14:07:09#"); });
  log.LogError(false, "-1", "Bad index", "clsSimpleArray", "AddItem");
  EXPECT_EQ(TempFolder::contentOf(temp.file("ErrorLog.txt")),
            "#2024-03-05 14:07:09#,\"-1\",\"Bad index\",\"clsSimpleArray\",\"AddItem\",\"Combwise v1.0.0\","
            "\"alice\",\"DESK1\"\r\n");
}

TEST(ErrorLog, ShowsOnlyTheGivenFieldsAndNeitherAFailedBoxNorAnUnwritableFolderStopsIt) {
  EXPECT_EQ(ErrorLog::message("9", "Overflow", "clsSimpleArray", "AddItem"),
            "Error occured: 9\r\nDescription: Overflow\r\nModule: clsSimpleArray\r\nFunction: AddItem");
  EXPECT_EQ(ErrorLog::message("", "", "", "Run"), "Error occured: \r\nFunction: Run");

  TempFolder temp;
  ErrorLog log(temp.folder());
  std::string shown;
  log.setShow([&shown](const std::string& title, const std::string& message) {
    shown = title + "|" + message;
    throw std::runtime_error("the box failed");
  });
  log.LogError(true, "", "As given  ", "", "");
  EXPECT_EQ(shown, "Combwise - ERROR|Error occured: \r\nDescription: As given  \r\n");
  EXPECT_NE(TempFolder::contentOf(temp.file("ErrorLog.txt")).find("\"As given  \""), std::string::npos);

  EXPECT_NO_THROW(ErrorLog(temp.file("no/such")).LogError(false, "1", "d", "m", "f"));
}

}  // namespace
}  // namespace combwise

#include "support/error_report.h"

#include <gtest/gtest.h>

#include "test_support.h"

namespace vireo {
namespace {

// The report file at the mail program's limit and one character past it.
TEST(ErrorReport, FileIsMarkedWhereAMailedCopyEndsOnlyPastFourHundredCharacters) {
  const size_t frame = ReportText({}).size();
  ASSERT_LT(frame, kMailBodyLimit);
  for (const auto& [length, marked] : {std::pair<size_t, bool>{400, false}, {401, true}}) {
    test::TempFolder folder;
    const ErrorReport report{std::string(length - frame, 'e'), "", ""};
    const std::string path = WriteReportFile(folder.str(), report);
    EXPECT_EQ(path, folder.File("fulllog.txt"));
    std::string written = test::ReadFile(path);
    EXPECT_EQ(written.find("*Email"), marked ? 401 : std::string::npos);
    if (marked) written.erase(400, kMailTruncationMark.size());
    EXPECT_EQ(written.size(), length) << "nothing else changes";
  }
}

// The report form shows the note and the log and opens the report and the mail (its test);
// here, what only the text and the link decide.
TEST(ErrorReport, TextAndMailLinkNameTheAddressLeaveOutABlankNoteAndEncodeTheLinksCharacters) {
  const std::string text = ReportText({"Overflow", "log", ""});
  EXPECT_NE(text.find("\r\nError Report: Vireo "), std::string::npos);
  EXPECT_NE(text.find("\r\n\r\nOverflow\r\n\r\nlog"), std::string::npos);
  const std::string link = ReportMailLink({"Bad & worse", "a\r\nb\nc", ""});
  EXPECT_EQ(
      link.rfind("mailto:bugs@vireo-reader.example.org?subject=Bug%20Report%20(Vireo%20-%20", 0),
      0u);
  EXPECT_NE(link.find("&body=If%20"), std::string::npos);
  EXPECT_NE(link.find("Bad%20%26%20worse%0D%0A%0D%0Aa%0D%0Ab%0D%0Ac"), std::string::npos);
  EXPECT_EQ(link.find_first_of("\r\n "), std::string::npos);
}

}  // namespace
}  // namespace vireo

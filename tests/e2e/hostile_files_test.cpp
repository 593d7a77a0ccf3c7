// Books made of one character run with no blank, settings and bookmark files a stranger or a
// crash left behind, and a book with an odd file name: the real reader starts on them within a
// time limit, quits cleanly, keeps its log small and leaves whole, sane files.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "e2e/program_runner.h"

namespace vireo {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Not;

std::vector<std::string> Lines(const std::string& content) {
  std::vector<std::string> lines;
  for (size_t start = 0, end; start < content.size(); start = end + 2) {
    end = std::min(content.find("\r\n", start), content.size());
    lines.push_back(content.substr(start, end - start));
  }
  return lines;
}

class HostileSettings : public testing::Test {
 protected:
  // Runs the program, which quits as soon as it has started: within 90 s, as a
  // quadratic load of the huge files below took 100 s.
  void StartAndQuit(const std::string& program = "Vireo") {
    const auto run = test::StartAndQuit(program_, program);
    ASSERT_EQ(run.status, 0) << run.err;
    ASSERT_THAT(program_.Log(), HasSubstr("Shutdown\r\n"));
  }

  void MakeBook(const std::string& name) {  // a second page, whose start is the bookmark
    std::string text;
    for (int line = 0; line < 100; ++line) text += "A line of the book with a few words in it.\r\n";
    ASSERT_EQ(test::MakeBook(program_, name, text).status, 0);
  }

  std::string Read(const std::string& name) const { return test::ReadFile(program_.Path(name)); }

  test::ProgramFolder program_;
};

TEST_F(HostileSettings, HugeFilesInDescendingOrderLoadAndAreSavedSorted) {
  constexpr int kKeys = 200'000;
  std::string descending;
  for (int i = kKeys; i >= 1; --i) {
    descending += "KEY" + std::to_string(1'000'000 + i) + "," + std::to_string(i) + "\r\n";
  }
  for (const char* file : {"Vireo.ini", "BookMarks.ini"}) {
    SCOPED_TRACE(file);
    test::WriteFile(program_.Path(file), descending);
    StartAndQuit();
    const std::vector<std::string> lines = Lines(Read(file));
    EXPECT_GE(lines.size(), size_t{kKeys});
    EXPECT_EQ(std::adjacent_find(lines.begin(), lines.end(), std::greater_equal<>()), lines.end())
        << "strictly ascending";
    EXPECT_THAT(lines, testing::Contains("KEY1000001,1"));
    EXPECT_THAT(lines, testing::Contains("KEY1200000,200000"));
    fs::remove(program_.Path(file));
  }
}

TEST_F(HostileSettings, OutOfRangePreferencesFallBackToTheDefaultsAndAreNotWrittenBack) {
  struct Case {
    std::string key;
    std::string value;
    std::string saved;  // the line at exit; "" when the key is gone or its value not known
  };
  const std::vector<Case> cases = {
      {"FONTSIZE", "-5", "FONTSIZE,10"},
      {"LEFTBORDER", "99999", ""},
      {"RIGHTBORDER", "100", "RIGHTBORDER,100"},
      {"TEXTURENUM", "44359", ""},
      {"PAGESWEEPWIDTH", "0", ""},
      {"WINWIDTH", "1e300", ""},
      {"HLCOLOUR", "16777216", "HLCOLOUR,45056"},
  };
  std::string settings;
  for (const Case& c : cases) settings += c.key + "," + c.value + "\r\n";
  test::WriteFile(program_.Path("Vireo.ini"), settings);
  StartAndQuit();
  const std::vector<std::string> saved = Lines(Read("Vireo.ini"));
  const std::string log = program_.Log();
  for (const Case& c : cases) {
    if (!c.saved.empty()) {
      EXPECT_THAT(saved, testing::Contains(c.saved));
    }
    if (c.saved == c.key + "," + c.value) continue;  // in range
    EXPECT_THAT(saved, Not(testing::Contains(c.key + "," + c.value)));
    EXPECT_THAT(log, HasSubstr(c.key + " " + c.value + " is outside "));
  }
}

TEST_F(HostileSettings, SavesKeepSymbolicLinksAndAStartRemovesStaleTemporaries) {
  MakeBook("Novel");
  fs::create_directories(program_.Path("real"));
  const std::string settings = program_.Path("real/settings.ini");
  const std::string bookmarks = program_.Path("real/marks.ini");
  fs::create_symlink("real/settings.ini", program_.Path("Vireo.ini"));
  fs::create_symlink(bookmarks, program_.Path("BookMarks.ini"));
  test::WriteFile(settings, "OLD,1\r\n");
  test::WriteFile(bookmarks, "other book,5000\r\n");  // saved upper-cased
  for (const std::string& file : {settings, bookmarks}) test::WriteFile(file + ".tmp", "killed");

  // Killed, with no chance to save, once started: the start alone removes them.
  const std::string script = test::ShellWord(program_.Path("Novel")) +
                             " & pid=$!; until grep -qs 'Startup complete' " +
                             program_.Path("log.txt") + "; do sleep 0.1; done; kill -KILL $pid";
  ASSERT_EQ(test::RunWithin(90, "sh -c " + test::ShellWord(script),
                            test::Unattended(program_.folder()), program_.folder())
                .status,
            0);
  EXPECT_FALSE(test::FileExists(settings + ".tmp"));
  EXPECT_FALSE(test::FileExists(bookmarks + ".tmp"));

  StartAndQuit("Novel");
  EXPECT_TRUE(fs::is_symlink(program_.Path("Vireo.ini")));
  EXPECT_TRUE(fs::is_symlink(program_.Path("BookMarks.ini")));
  EXPECT_THAT(test::ReadFile(settings), HasSubstr("OLD,1\r\n"));
  EXPECT_THAT(test::ReadFile(settings), HasSubstr("FONTSIZE,10\r\n"));
  EXPECT_EQ(test::ReadFile(bookmarks).substr(0, 6), "NOVEL,");
  EXPECT_THAT(test::ReadFile(bookmarks), HasSubstr("\nOTHER BOOK,5000\r\n"));
}

TEST_F(HostileSettings, AnOddBookNameStaysOneSettingOnOneLine) {
  const std::string name = "Odd \"name\" $HOME `id` 100% back\\slash\nExec=evil\nfeeds";
  MakeBook(name);
  StartAndQuit(name);

  EXPECT_THAT(program_.Log(), HasSubstr("1 setting(s) with a line end in the name or value not "
                                        "written to " +
                                        program_.Path("BookMarks.ini")));
  const std::string marks = Read("BookMarks.ini");
  for (const std::string& line : Lines(marks)) {
    EXPECT_THAT(line, testing::MatchesRegex("[^,\r\n]+,-?[0-9]+")) << marks;
  }
}

// Big enough that a step quadratic in the run takes hours; linear steps
// take seconds, also under the sanitizers.
constexpr size_t kRunBytes = 1'000'000;

std::string Repeated(std::string_view unit) {
  std::string text;
  while (text.size() < kRunBytes) text += unit;
  return text;
}

// Name, the run's unit, and whether the run floods the log with errors (a
// picture reference the reader cannot place), which the log then counts.
const std::tuple<const char*, std::string, bool> kBooks[] = {
    {"OneLongWord", "a", false},
    {"HyphenatedRun", "ab-", false},
    {"PictureReferences", "[IMG=", true},
    {"NumericReferenceOpenings", "&#", false},
    {"Windows1252HighBytes", "\xFF", false},
    {"PageBreakCodes", "\x86", false},
    {"StyleCodesInAWord", "x\x80y\x82z\x81\x83", false},
    {"PictureNumberAfterALongRun", "", true},
};

class HostileBooks : public testing::TestWithParam<std::tuple<const char*, std::string, bool>> {};

TEST_P(HostileBooks, OpenInTimeQuitCleanlyAndKeepTheLogSmall) {
  const auto& [name, unit, floods_errors] = GetParam();
  const std::string text =
      unit.empty() ? std::string(kRunBytes, 'x') + "=" + std::string(kRunBytes, '0') + "[IMG="
                   : Repeated(unit);
  test::ProgramFolder program;
  const auto made = test::MakeBook(program, "Book", text);
  ASSERT_EQ(made.status, 0) << made.err;
  const auto run = test::StartAndQuit(program, "Book");
  EXPECT_EQ(run.status, 0) << run.err;
  const std::string log = program.Log();
  EXPECT_THAT(log, HasSubstr("End of actions list\r\n"));
  EXPECT_THAT(log, testing::EndsWith("Shutdown\r\n"));
  EXPECT_LT(log.size(), 64u * 1024);
  if (floods_errors) {
    EXPECT_THAT(log, HasSubstr(" >> repeated "));
  }
}

INSTANTIATE_TEST_SUITE_P(Runs, HostileBooks, testing::ValuesIn(kBooks),
                         [](const auto& run) { return std::string(std::get<0>(run.param)); });

}  // namespace
}  // namespace vireo

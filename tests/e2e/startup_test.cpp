#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "e2e/program_runner.h"

namespace vireo {
namespace {

using testing::HasSubstr;

// The headless screenshot mode saves the window, prints where and quits as
// Exit does.
TEST(Startup, TheBareReaderStartsReportsNoBookAndShutsDownInOrder) {
  test::ProgramFolder program;
  const std::string picture = program.Path("window.png");
  const auto result = test::Run(program.Path("Vireo"),
                                test::Unattended(program.folder(), {"VIREO_SCREENSHOT=" + picture}),
                                program.folder());
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_THAT(result.err, HasSubstr("There is no ebook stored in this file."));
  EXPECT_THAT(result.out, HasSubstr(picture));
  EXPECT_EQ(test::ReadFile(picture).substr(1, 3), "PNG");
  const std::string log = program.Log();
  EXPECT_EQ(log.find("Log file created "), 14u) << log;
  size_t at = 0;  // each line after the one before
  for (const std::string& text : std::vector<std::string>{
           "Operating System: ", "\r\n", "Startup\r\n", "Showing splash\r\n",
           "Registering File Extensions\r\n", "Loading Textures\r\n", "Scanning fonts\r\n",
           "Reading settings\r\n", "Drawing blank book\r\n", "Attempting to load Vireo\r\n",
           "Loading from: " + program.Path("Vireo"), "Startup complete\r\n",
           "Listing last 40 actions: \r\n", "End of actions list\r\n", "Shutdown\r\n"}) {
    at = log.find(text, at);
    ASSERT_NE(at, std::string::npos) << "missing or out of order: " << text << "\n" << log;
  }
  EXPECT_TRUE(test::FileExists(program.Path("Vireo.ini")));
}

// Once running, and while the whole Bible is still being loaded and paginated
// (the log is begun early in the start-up sequence).
TEST(Startup, TerminationAsksTheReaderToQuitAsExitDoes) {
  for (const auto& [book, delay] : {std::pair{"Vireo", "1"}, std::pair{"Bible", "0"}}) {
    test::ProgramFolder program;
    std::filesystem::copy_file(test::BinFolder() + "/Bible", program.Path("Bible"));
    const std::string started = "until [ -s " + program.Path("log.txt") + " ]; do sleep 0.01; done";
    const auto result = test::RunWithin(60,
                                        "sh -c '" + program.Path(book) + " & pid=$!; " + started +
                                            "; sleep " + delay + "; kill -TERM $pid; wait $pid'",
                                        test::Unattended(program.folder()), program.folder());
    EXPECT_EQ(result.status, 0) << book << result.err;
    EXPECT_THAT(program.Log(), HasSubstr("Shutdown\r\n")) << book;
  }
}

TEST(Startup, WithoutTheHelperLibraryTheReaderEndsBeforeAnyWindow) {
  test::ProgramFolder program;
  std::filesystem::remove(program.Path("libvHtml.so"));
  const auto result =
      test::Run(program.Path("Vireo"),
                test::Unattended(program.folder(), {"VIREO_QUIT_AFTER_MS=300"}), program.folder());
  EXPECT_NE(result.status, 0);
  EXPECT_THAT(
      result.err,
      HasSubstr("libvHtml.so is required. This DLL is contained in the Vireo installer at "));
  EXPECT_FALSE(test::FileExists(program.Path("log.txt")));
  EXPECT_FALSE(test::FileExists(program.Path("Vireo.ini")));
}

// The reader's language chosen in one run and kept in the next; choosing English again is the
// window's test.
TEST(Languages, SpanishChosenIsSpokenAfterARestartUntilItsFileIsGone) {
  test::ProgramFolder program;
  std::filesystem::copy(std::filesystem::path(test::BinFolder()) / "languages",
                        program.folder().path() / "languages");
  // The Language menu: 0 English, 1 Deutsch, 2 Español.
  ASSERT_EQ(test::StartAndQuit(program, "Vireo", {"VIREO_MENU=mnuSetLang2"}).status, 0);
  EXPECT_NE(test::ReadFile(program.Path("Vireo.ini")).find("LANGUAGE,es\r\n"), std::string::npos);

  // Without its manual folder, Help says where the manual belongs (messages
  // are written in Windows-1252).
  const auto spanish = test::StartAndQuit(program, "Vireo", {"VIREO_MENU=mnuHelp"});
  EXPECT_NE(spanish.err.find("[message] Vireo: No se encontr\xf3"
                             " el manual."),
            std::string::npos)
      << spanish.err;
  EXPECT_NE(program.Log().find("Registrando los tipos de archivo"), std::string::npos);

  // A chosen language whose file is gone gives English.
  std::filesystem::remove(program.Path("languages/es.lng"));
  const auto english = test::StartAndQuit(program, "Vireo", {"VIREO_MENU=mnuHelp"});
  EXPECT_NE(english.err.find("[message] Vireo: The manual was not found."), std::string::npos)
      << english.err;
  EXPECT_NE(program.Log().find("Registering File Extensions"), std::string::npos);
}

}  // namespace
}  // namespace vireo

// The reader's language chosen in one run and kept in the next, on the real program;
// choosing English again is the window's test.

#include <gtest/gtest.h>

#include <filesystem>

#include "program_runner.h"

namespace vireo {
namespace {

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

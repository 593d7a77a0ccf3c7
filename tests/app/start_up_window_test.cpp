// Starting and leaving the real window. The log's lines are checked on the
// real program by the e2e start-up test.

#include <gtest/gtest.h>

#include "app/frm_main.h"
#include "app/main_window.h"
#include "app/reader_window_fixture.h"

namespace vireo {
namespace {

TEST(StartUp, ExitWaitsForStartUpThenStoresEveryPreferenceSorted) {
  test::ReaderWindow reader("A short book.");
  reader.logic().lifecycle().Quit();
  EXPECT_FALSE(reader.logic().lifecycle().Form_QueryUnload(true))
      << "a close is refused only while paginating";
  EXPECT_EQ(reader.window().end_status(), -1) << "the window is busy until start-up ends";

  reader.Start();
  EXPECT_EQ(reader.window().menu().Item("mnuExit")->text().toStdString(),
            "Exit Vireo " + AppVersion());
  EXPECT_FALSE(test::FileExists(reader.folder().File("xdg/mime/packages/vireo-books.xml")))
      << "a copy in the temporary folder registers nothing";
  const WindowSize size = reader.window().WindowOuterSize();
  reader.logic().lifecycle().Quit();
  EXPECT_EQ(reader.window().end_status(), 0);
  EXPECT_FALSE(reader.window().isVisible());
  // A first run writes every preference of the shutdown list.
  EXPECT_EQ(test::ReadFile(reader.folder().File("Vireo.ini")),
            "BARHIDDEN,False\r\nEXTRAPARAGRAPHLINE,False\r\nFONTNAME,Times New Roman\r\n"
            "FONTSIZE,10\r\nHLCOLOUR,45056\r\nINDENTED,True\r\nINKCOLOUR,0\r\nJUSTIFY,True\r\n"
            "PAPERCOLOUR,16777215\r\nPATH," +
                reader.folder().str() +
                "\r\nPNCOLOUR,8421504\r\nSINGLEPAGEMODE,False\r\nUNDERSCORES,False\r\nWINHEIGHT," +
                std::to_string(static_cast<int>(size.height)) + "\r\nWINWIDTH," +
                std::to_string(static_cast<int>(size.width)) + "\r\n");
}

TEST(ProgramFolderString, ADrivesRootBecomesC) {
  EXPECT_EQ(ProgramLifecycle::ProgramFolderString("D:\\"), "C:");
  EXPECT_EQ(ProgramLifecycle::ProgramFolderString("/"), "C:");
  EXPECT_EQ(ProgramLifecycle::ProgramFolderString("/opt/vireo"), "/opt/vireo");
}

}  // namespace
}  // namespace vireo

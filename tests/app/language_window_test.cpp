// The shipped translations chosen on the real window.

#include <gtest/gtest.h>

#include <filesystem>

#include "app/reader_window_fixture.h"
#include "support/translation.h"

namespace vireo {
namespace {

std::string Text(QAction* item) { return item->text().toStdString(); }

TEST(LanguageWindow, ChoosingALanguageTranslatesTheWindowAndEnglishBringsItBack) {
  test::ReaderWindow reader(test::NumberedProse(20));
  std::filesystem::copy(std::filesystem::path(test::BinFolder()) / "languages",
                        reader.folder().path() / "languages");
  reader.Start();
  MainWindow& window = reader.window();
  QListWidget* list = window.canvas().languageList();
  ASSERT_EQ(list->count(), 3);
  EXPECT_EQ(list->item(1)->text().toStdString(), "Deutsch");
  EXPECT_EQ(list->item(2)->text().toStdString(), "Espa\xC3\xB1ol");

  list->setCurrentRow(2);
  QApplication::processEvents();
  OptionsMenu& menu = window.menu();
  EXPECT_EQ(Text(menu.Item("mnuLoad")), "Cargar");
  EXPECT_EQ(Text(menu.Item("mnuFile")), "Archivo") << "submenus too";
  EXPECT_TRUE(menu.Item("mnuSetLang2")->isChecked());
  EXPECT_EQ(window.bar().Label1->text().toStdString(), "Fuente:");
  EXPECT_EQ(window.bar().Label1->toolTip().toStdString(),
            "Haga clic aqu\xC3\xAD para cambiar la fuente");

  test::Trigger(reader, "mnuSetLang1");
  EXPECT_EQ(Text(menu.Item("mnuLoad")), "Laden") << "from Spanish straight to German";
  EXPECT_EQ(list->currentRow(), 1);

  test::Trigger(reader, "mnuSetLang0");
  EXPECT_EQ(Text(menu.Item("mnuLoad")), "Load");
  EXPECT_EQ(window.bar().Label1->text().toStdString(), "Font:");
  EXPECT_EQ(window.bar().cmdExit->text().toStdString(), "Exit");
  SetLanguage({});
}

}  // namespace
}  // namespace vireo

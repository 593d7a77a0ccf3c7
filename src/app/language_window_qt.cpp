#include "app/language_window_qt.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QWidget>

#include "support/translate_form_qt.h"

namespace vireo {

void LoadQtTranslation(std::string_view code, std::unique_ptr<QTranslator>& translator) {
  if (translator) QCoreApplication::removeTranslator(translator.get());
  translator.reset();
  if (code.empty()) return;
  auto loaded = std::make_unique<QTranslator>();
  const QString name =
      "qtbase_" + QString::fromLatin1(code.data(), static_cast<qsizetype>(code.size()));
  if (!loaded->load(name, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) return;
  QCoreApplication::installTranslator(loaded.get());
  translator = std::move(loaded);
}

void TranslateOpenForms() {
  for (QWidget* window : QApplication::topLevelWidgets()) TranslateForm(window);
}

}  // namespace vireo

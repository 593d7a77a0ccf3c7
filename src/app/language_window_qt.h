#pragma once

#include <QTranslator>
#include <memory>
#include <string_view>

namespace vireo {

// Qt's own texts (the buttons of message boxes, the file, print and colour
// dialogs) in the language of code ("es", "de"; "" for English), from Qt's
// translations installed on the system; nothing changes when Qt has none for
// it. translator holds the one installed.
void LoadQtTranslation(std::string_view code, std::unique_ptr<QTranslator>& translator);

// TranslateForm on every open window of the program.
void TranslateOpenForms();

}  // namespace vireo

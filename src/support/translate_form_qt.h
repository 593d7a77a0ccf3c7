#pragma once

#include <QString>

class QWidget;

namespace vireo {

// The translation of an English text, as Qt text.
QString Tr(const char* text);

// TranslateForm: every caption of form in the current language — the
// window title; the text and tool tip of buttons, check boxes, option
// buttons and labels, the title and tool tip of group boxes; the tool tip,
// place-holder and (when read-only) text of text boxes; the title of menus
// and the text of menu items. Each control remembers its English text, so a
// form translated again in another language starts from English; a text the
// program changed since is taken as the new English text. Errors are logged
// as "sub translateform" of module "mSharedLocalise".
void TranslateForm(QWidget* form);

}  // namespace vireo

#include "support/translate_form_qt.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QVariant>
#include <QWidget>
#include <functional>
#include <string>

#include "support/error_trap.h"
#include "support/translation.h"
#include "support/windows1252_qt.h"

namespace vireo {
namespace {

// The English text of a control's text: what it was when last translated,
// unless the program has changed the text since.
QString EnglishOf(QObject* control, const char* property, const QString& shown) {
  const QByteArray english_key = QByteArray("vireoEnglish_") + property;
  const QByteArray shown_key = QByteArray("vireoShown_") + property;
  if (control->property(shown_key.constData()).toString() == shown &&
      control->property(english_key.constData()).isValid()) {
    return control->property(english_key.constData()).toString();
  }
  return shown;
}

void TranslateText(QObject* control, const char* property, const QString& shown,
                   const std::function<void(const QString&)>& set) {
  if (shown.trimmed().isEmpty()) return;
  const QString english = EnglishOf(control, property, shown);
  const std::string key = ToWindows1252(english);
  if (FromWindows1252(key) != english) return;  // not an English text of ours ("A\u2212")
  const QString translated = FromWindows1252(GetTranslation(key));
  control->setProperty((QByteArray("vireoEnglish_") + property).constData(), english);
  control->setProperty((QByteArray("vireoShown_") + property).constData(), translated);
  if (translated != shown) set(translated);
}

void TranslateToolTip(QWidget* control) {
  TranslateText(control, "toolTip", control->toolTip(),
                [control](const QString& text) { control->setToolTip(text); });
}

void TranslateControl(QObject* object) {
  if (auto* button = qobject_cast<QAbstractButton*>(object)) {
    TranslateText(button, "text", button->text(),
                  [button](const QString& t) { button->setText(t); });
    TranslateToolTip(button);
  } else if (auto* label = qobject_cast<QLabel*>(object)) {
    TranslateText(label, "text", label->text(), [label](const QString& t) { label->setText(t); });
    TranslateToolTip(label);
  } else if (auto* group = qobject_cast<QGroupBox*>(object)) {
    TranslateText(group, "title", group->title(),
                  [group](const QString& t) { group->setTitle(t); });
    TranslateToolTip(group);
  } else if (auto* box = qobject_cast<QLineEdit*>(object)) {
    if (box->isReadOnly()) {
      TranslateText(box, "text", box->text(), [box](const QString& t) { box->setText(t); });
    }
    TranslateText(box, "placeholderText", box->placeholderText(),
                  [box](const QString& t) { box->setPlaceholderText(t); });
    TranslateToolTip(box);
  } else if (auto* menu = qobject_cast<QMenu*>(object)) {
    TranslateText(menu, "title", menu->title(), [menu](const QString& t) { menu->setTitle(t); });
  } else if (auto* item = qobject_cast<QAction*>(object)) {
    TranslateText(item, "text", item->text(), [item](const QString& t) { item->setText(t); });
  }
}

}  // namespace

QString Tr(const char* text) { return FromWindows1252(GetTranslation(text)); }

void TranslateForm(QWidget* form) {
  Trap("sub translateform", "mSharedLocalise", [&] {
    if (form == nullptr) return;
    TranslateText(form, "windowTitle", form->windowTitle(),
                  [form](const QString& t) { form->setWindowTitle(t); });
    TranslateControl(form);
    for (QObject* control : form->findChildren<QObject*>()) TranslateControl(control);
  });
}

}  // namespace vireo

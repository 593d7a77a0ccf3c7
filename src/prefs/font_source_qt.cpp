#include "prefs/font_source_qt.h"

#include <QFontDatabase>
#include <QStringList>

namespace vireo {

std::vector<std::string> QtFontSource::InstalledFonts() const {
  std::vector<std::string> names;
  for (const QString& family : QFontDatabase::families()) {
    if (!QFontDatabase::isPrivateFamily(family)) names.push_back(family.toStdString());
  }
  return names;
}

bool QtFontSource::Usable(const std::string& name) const {
  return QFontDatabase::hasFamily(QString::fromStdString(name));
}

}  // namespace vireo

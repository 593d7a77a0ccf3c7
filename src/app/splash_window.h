#pragma once

#include <QLabel>
#include <QWidget>

namespace vireo {

// frmSplash: shown while the program starts, with a status text the main
// window writes.
class SplashWindow : public QWidget {
  Q_OBJECT

 public:
  explicit SplashWindow(QWidget* parent = nullptr);
  void SetStatus(const QString& text);
  QString status() const { return status_->text(); }

  static constexpr const char* kCopyright = "Copyright \u00A9 2026 Marrowind Software";

 private:
  QLabel* status_;
};

}  // namespace vireo

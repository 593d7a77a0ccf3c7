#include "app/splash_window.h"

#include <QVBoxLayout>

#include "support/error_trap.h"
#include "support/translate_form_qt.h"

namespace vireo {

SplashWindow::SplashWindow(QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint), status_(new QLabel(this)) {
  setObjectName("frmSplash");
  Trap("sub form_load", "frmSplash", [&] {
    auto* layout = new QVBoxLayout(this);
    auto* title = new QLabel("Vireo", this);
    QFont title_font = title->font();
    title_font.setPointSize(24);
    title_font.setBold(true);
    title->setFont(title_font);
    title->setAlignment(Qt::AlignCenter);
    auto* copyright = new QLabel(QString::fromUtf8(kCopyright), this);
    copyright->setAlignment(Qt::AlignCenter);
    status_->setAlignment(Qt::AlignCenter);
    status_->setText(Tr("Loading Font List..."));
    layout->addWidget(title);
    layout->addWidget(copyright);
    layout->addWidget(status_);
    setFixedSize(360, 180);
  });
}

void SplashWindow::SetStatus(const QString& text) {
  status_->setText(text);
  status_->repaint();
}

}  // namespace vireo

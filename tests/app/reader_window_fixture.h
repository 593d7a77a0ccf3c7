#pragma once

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <functional>
#include <memory>

#include "app/fake_window.h"
#include "app/main_window.h"

namespace vireo::test {

// The real main window, offscreen, in its own program folder with an ebook of `text`. The
// person is a FakeUser unless another is given.
class ReaderWindow {
 public:
  ReaderWindow(const std::string& text, const std::string& settings = "",
               UserInteraction* person = nullptr)
      : files_(text, settings),
        window_(std::make_unique<MainWindow>(person != nullptr ? *person : user_,
                                             ProgramLocation{files_.folder.str(), book()})) {}
  ~ReaderWindow() {
    ClearQuit();
    window_.reset();
  }

  // Runs the start-up sequence and shows the window.
  void Start() {
    window_->logic().lifecycle().Form_Load();
    window_->show();
    QApplication::processEvents();
  }

  MainWindow& window() { return *window_; }
  frmMain& logic() { return window_->logic(); }
  const TempFolder& folder() const { return files_.folder; }
  const std::string& book() const { return files_.book_path; }
  FakeUser& user() { return user_; }

 private:
  // After Exit Qt refuses every later event loop; a short run of the main loop clears that.
  void ClearQuit() {
    if (!window_ || window_->end_status() < 0) return;
    QTimer::singleShot(0, [] { QCoreApplication::exit(0); });
    QCoreApplication::exec();
  }

  ReaderFolder files_;
  FakeUser user_;
  std::unique_ptr<MainWindow> window_;
};

// A released key on the window, as a person types it.
inline void Press(ReaderWindow& reader, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
  QTest::keyClick(&reader.window(), key, modifiers);
  QApplication::processEvents();
}

inline void Trigger(ReaderWindow& reader, const char* item) {
  reader.window().menu().Item(item)->trigger();
  QApplication::processEvents();
}

// Runs action while a zero-interval timer calls tick whenever events run.
inline void WhileWatching(const std::function<void()>& action, const std::function<void()>& tick) {
  QTimer watch;
  watch.setInterval(0);
  QObject::connect(&watch, &QTimer::timeout, tick);
  watch.start();
  action();
  watch.stop();
}

// Runs action and hands the first modal dialog of type Dialog that comes up to answer;
// gives whether one came up.
template <typename Dialog>
bool Answering(const std::function<void()>& action, const std::function<void(Dialog&)>& answer) {
  bool answered = false;
  WhileWatching(action, [&] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    if (answered || dialog == nullptr) return;
    answered = true;
    answer(*dialog);
  });
  return answered;
}

// Whether the book was paginated while action ran.
inline bool Repaginates(ReaderWindow& reader, const std::function<void()>& action) {
  bool seen = false;
  WhileWatching(action, [&] { seen |= reader.logic().paginator_busy(); });
  return seen;
}

// Drops a file on the window; returns whether the drag was accepted when it entered.
inline bool DropFile(ReaderWindow& reader, const std::string& path) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(QString::fromStdString(path))});
  const QPoint at = reader.window().canvas().FrameRect(0).center().toPoint();
  QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&reader.window(), &enter);
  if (!enter.isAccepted()) return false;
  QDropEvent drop(QPointF(at), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&reader.window(), &drop);
  QApplication::processEvents();
  return true;
}

inline QImage BoxPicture(ReaderWindow& reader, int box) {
  return reader.window().canvas().BoxImage(box).convertToFormat(QImage::Format_RGB32);
}

// The last message the program showed or asked, or "" when there was none.
inline std::string LastMessage(ReaderWindow& reader) {
  const auto& messages = reader.user().messages;
  return messages.empty() ? "" : messages.back();
}

}  // namespace vireo::test

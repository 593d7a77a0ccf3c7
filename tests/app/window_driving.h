#pragma once

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <functional>
#include <string>

#include "app/reader_window_fixture.h"

namespace vireo::test {

inline int Px(double twips) { return static_cast<int>(twips / 15 + 0.5); }

// A released key on the window, as a person types it.
inline void Press(ReaderWindow& reader, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
  QTest::keyClick(&reader.window(), key, modifiers);
  QApplication::processEvents();
}

inline void Trigger(ReaderWindow& reader, const char* item) {
  reader.window().menu().Item(item)->trigger();
  QApplication::processEvents();
}

// Runs action while a zero-interval timer looks at the window each time it
// lets events run. Once a pagination is under way and the reader's spread is
// already on show (the pages can be read while the rest is paginated),
// during() is called, once. Returns whether that moment came.
inline bool DuringPagination(ReaderWindow& reader, const std::function<void()>& action,
                             const std::function<void()>& during) {
  bool called = false;
  QTimer watch;
  watch.setInterval(0);
  QObject::connect(&watch, &QTimer::timeout, [&] {
    if (called || !reader.logic().paginator_busy() || reader.logic().reindexing()) return;
    called = true;
    during();
  });
  watch.start();
  action();
  watch.stop();
  QApplication::processEvents();
  return called;
}

// Whether the book was paginated while action ran.
inline bool Repaginates(ReaderWindow& reader, const std::function<void()>& action) {
  bool seen = false;
  QTimer watch;
  watch.setInterval(0);
  QObject::connect(&watch, &QTimer::timeout, [&] { seen |= reader.logic().paginator_busy(); });
  watch.start();
  action();
  watch.stop();
  return seen;
}

// Drops a file on the window as the desktop does; returns whether the drag
// was accepted when it entered.
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

}  // namespace vireo::test

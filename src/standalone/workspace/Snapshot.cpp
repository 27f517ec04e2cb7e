#include "standalone/workspace/Snapshot.h"

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QWidget>

#include "standalone/host/engine/AtomicFile.h"

namespace vesk {
namespace {

/// Lets what was put off until the event loop happen now, so that the picture shows it.
void settle() {
  QCoreApplication::sendPostedEvents();
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

QImage pictureOf(QWidget& widget, QSize size) {
  const QSize former = widget.size();
  if (size != former) {
    widget.resize(size);
    settle();
    widget.resize(size);  // a layout around the widget may have had its say
  }
  QImage image(size, QImage::Format_RGB32);
  image.fill(widget.palette().color(QPalette::Window));
  widget.render(&image);
  if (size != former) widget.resize(former);
  return image;
}

}  // namespace

std::string writeSnapshot(QWidget& widget, QSize size, const std::string& path) {
  settle();
  const QSize wanted(size.width() > 0 ? size.width() : widget.width(),
                     size.height() > 0 ? size.height() : widget.height());
  if (wanted.isEmpty()) return "the picture would be empty";
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  if (!pictureOf(widget, wanted).save(&buffer, "PNG")) return "the picture cannot be encoded";
  return writeAtomically(path, {buffer.data().constData(), std::size_t(buffer.size())});
}

}  // namespace vesk

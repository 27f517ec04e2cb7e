#include "standalone/widgets/clipboard/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace orvuilib {

QtClipboard::QtClipboard() { orvlib::Clipboard::install(this); }

QtClipboard::~QtClipboard() { orvlib::Clipboard::install(nullptr); }

bool QtClipboard::setText(const std::string& text) {
  const QByteArray bytes = QByteArray::fromStdString(text);
  auto* data = new QMimeData;
  data->setData(kMimeType, bytes);
  data->setText(QString::fromUtf8(bytes));
  QClipboard* clipboard = QGuiApplication::clipboard();
  clipboard->setMimeData(data);
  const QMimeData* taken = clipboard->mimeData();
  return taken && taken->data(kMimeType) == bytes;
}

std::string QtClipboard::text() const {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  if (!data) return {};
  if (data->hasFormat(kMimeType)) return data->data(kMimeType).toStdString();
  // Other programs may have changed the line ends.
  return data->text().replace("\r\n", "\n").toStdString();
}

}  // namespace orvuilib

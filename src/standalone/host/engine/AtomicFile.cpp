#include "standalone/host/engine/AtomicFile.h"

#include <QFileInfo>
#include <QSaveFile>

namespace vesk {
namespace {

/// Why what is at a path is left alone; empty for a file and for nothing at all.
std::string whyNoFile(const QString& path) {
  const QFileInfo info(path);
  if (info.isDir()) return "it is a folder";
  return info.exists() && !info.isFile() ? "it is no regular file" : "";
}

}  // namespace

std::optional<std::string> readWholeFile(const std::string& path, std::string& reason) {
  QFile file(QString::fromStdString(path));
  reason = whyNoFile(file.fileName());
  if (!reason.empty()) return std::nullopt;
  const bool opened = file.open(QIODevice::ReadOnly);
  const QByteArray bytes = opened ? file.readAll() : QByteArray();
  if (opened && file.error() == QFileDevice::NoError) return bytes.toStdString();
  reason = file.errorString().toStdString();
  return std::nullopt;
}

std::string writeAtomically(const std::string& path, std::string_view bytes) {
  QSaveFile file(QString::fromStdString(path));
  if (std::string reason = whyNoFile(file.fileName()); !reason.empty()) return reason;
  const auto size = static_cast<qint64>(bytes.size());
  if (file.open(QIODevice::WriteOnly) && file.write(bytes.data(), size) == size && file.commit()) {
    return {};
  }
  return file.errorString().toStdString();
}

}  // namespace vesk

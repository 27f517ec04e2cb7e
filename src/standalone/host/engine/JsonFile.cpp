#include "standalone/host/engine/JsonFile.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

namespace vesk {
namespace {

std::string placeIn(const QByteArray& bytes, qsizetype offset) {
  const QByteArray before = bytes.left(offset);
  const qsizetype lineStart = before.lastIndexOf('\n') + 1;
  const qsizetype column = QString::fromUtf8(before.mid(lineStart)).size() + 1;
  return "line " + std::to_string(before.count('\n') + 1) + ", column " + std::to_string(column);
}

}  // namespace

JsonFile readJsonFile(const std::string& path) {
  QFile file(QString::fromStdString(path));
  const QFileInfo info(file);
  if (!info.exists() && !info.isSymLink()) return {JsonFile::State::Missing, {}, {}};
  const bool opened = file.open(QIODevice::ReadOnly);
  const QByteArray bytes = opened ? file.readAll() : QByteArray();
  if (!opened || file.error() != QFileDevice::NoError) {
    return {JsonFile::State::Unreadable, {}, file.errorString().toStdString()};
  }
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
  if (error.error != QJsonParseError::NoError) {
    return {JsonFile::State::Damaged,
            {},
            placeIn(bytes, error.offset) + ": " + error.errorString().toStdString()};
  }
  if (!document.isObject()) return {JsonFile::State::Damaged, {}, "it holds no JSON object"};
  return {JsonFile::State::Read, document.object(), {}};
}

}  // namespace vesk

#include "standalone/host/engine/JsonFile.h"

#include <QJsonDocument>
#include <filesystem>

#include "standalone/host/engine/AtomicFile.h"

namespace vesk {
namespace fs = std::filesystem;
namespace {

std::string placeIn(const QByteArray& bytes, qsizetype offset) {
  const QByteArray before = bytes.left(offset);
  const qsizetype lineStart = before.lastIndexOf('\n') + 1;
  const qsizetype column = QString::fromUtf8(before.mid(lineStart)).size() + 1;
  return "line " + std::to_string(before.count('\n') + 1) + ", column " + std::to_string(column);
}

}  // namespace

JsonFile readJsonFile(const std::string& path) {
  std::error_code unknown;  // in a folder out of reach, reading tells
  if (fs::symlink_status(path, unknown).type() == fs::file_type::not_found) {
    return {JsonFile::State::Missing, {}, {}};
  }
  std::string reason;
  const auto text = readWholeFile(path, reason);
  if (!text) return {JsonFile::State::Unreadable, {}, reason};
  const QByteArray bytes = QByteArray::fromStdString(*text);
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

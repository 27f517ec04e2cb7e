#include "standalone/host/engine/OptionVariables.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>
#include <charconv>
#include <limits>
#include <optional>

#include "standalone/host/engine/JsonFile.h"
#include "standalone/host/engine/Messages.h"
#include "standalone/host/engine/ResultValue.h"
#include "standalone/host/language/Tokenizer.h"

namespace vesk {
namespace {

constexpr int kFormatVersion = 1;

using Value = OptionVariables::Value;
using Values = std::map<std::string, Value, std::less<>>;

// A double is kept as text: a JSON number has no room for an infinity, and 3.0 would come back
// as 3.
struct ToJson {
  QJsonObject operator()(int value) const { return {{"type", "int"}, {"value", value}}; }
  QJsonObject operator()(double value) const {
    return {{"type", "float"}, {"value", QString::fromStdString(toText(value))}};
  }
  QJsonObject operator()(const std::string& value) const {
    return {{"type", "string"}, {"value", QString::fromStdString(value)}};
  }
};

std::optional<Value> readInteger(const QJsonValue& json) {
  constexpr qint64 kNone = std::numeric_limits<qint64>::max();
  const qint64 value = json.toInteger(kNone);
  if (value != static_cast<int>(value)) return {};
  return static_cast<int>(value);
}

std::optional<Value> readFloat(const QJsonValue& json) {
  const std::string text = json.toString().toStdString();
  const char* end = text.data() + text.size();
  double value = 0;
  const auto read = std::from_chars(text.data(), end, value);
  if (read.ec != std::errc() || read.ptr != end) return {};
  return value;
}

std::optional<Value> readValue(const QJsonValue& json) {
  const QString type = json["type"].toString();
  const QJsonValue value = json["value"];
  if (type == u"int") return readInteger(value);
  if (type == u"float") return readFloat(value);
  if (type == u"string" && value.isString()) return value.toString().toStdString();
  return {};
}

/// Reads all values, or gives the reason why not.
std::string readValues(const QJsonObject& root, Values& values) {
  if (!root["variables"].isObject()) return "\"variables\" is missing or no object";
  const QJsonObject variables = root["variables"].toObject();
  for (auto it = variables.begin(); it != variables.end(); ++it) {
    const std::string name = it.key().toStdString();
    const std::optional<Value> value = readValue(it.value());
    if (!value) return "the variable " + vesk::quoted(name) + " has no readable type and value";
    values.emplace(name, *value);
  }
  return {};
}

}  // namespace

OptionVariables::OptionVariables(std::string folder, MessageChannel& messages)
    : folder_(std::move(folder)), messages_(messages) {}

OptionVariables::~OptionVariables() { saveIfChanged(); }

std::string OptionVariables::path() const { return folder_ + "/optionVars.json"; }

const Value* OptionVariables::find(std::string_view name) {
  readOnce();
  const auto found = values_.find(name);
  return found == values_.end() ? nullptr : &found->second;
}

void OptionVariables::set(const std::string& name, Value value) {
  readOnce();
  const auto [entry, added] = values_.try_emplace(name, value);
  if (!added && entry->second == value) return;
  entry->second = std::move(value);
  changed_ = true;
}

bool OptionVariables::remove(std::string_view name) {
  readOnce();
  const auto found = values_.find(name);
  if (found == values_.end()) return false;
  values_.erase(found);
  changed_ = true;
  return true;
}

std::vector<std::string> OptionVariables::names() {
  readOnce();
  std::vector<std::string> names;
  for (const auto& [name, value] : values_) names.push_back(name);
  return names;
}

void OptionVariables::readOnce() {
  if (file_ != File::Unread) return;
  file_ = File::Usable;
  if (folder_.empty()) return;
  const JsonFile file = readJsonFile(path());
  if (file.state == JsonFile::State::Missing) return;
  if (file.state == JsonFile::State::Unreadable) return leaveAlone(file.reason);
  if (file.state == JsonFile::State::Damaged) return moveAside(file.reason);

  const QJsonValue version = file.object["version"];
  if (!version.isDouble()) return moveAside("\"version\" is missing or no number");
  if (version.toDouble() != kFormatVersion) {
    return leaveAlone("its format version is not " + std::to_string(kFormatVersion));
  }
  Values values;
  if (const std::string reason = readValues(file.object, values); !reason.empty()) {
    return moveAside(reason);
  }
  values_ = std::move(values);
}

void OptionVariables::leaveAlone(std::string_view reason) {
  file_ = File::Untouchable;
  messages_.warning("the option variables in " + vesk::quoted(path()) +
                    " cannot be read: " + std::string(reason));
}

void OptionVariables::moveAside(std::string_view reason) {
  const QString damaged = QString::fromStdString(path() + ".damaged");
  QString target = damaged;
  for (int i = 1; QFileInfo::exists(target); ++i) target = damaged + QString::number(i);
  if (!QFile::rename(QString::fromStdString(path()), target)) {
    return leaveAlone(std::string(reason) + "; it cannot be moved aside");
  }
  messages_.warning("the option variables in " + vesk::quoted(path()) +
                    " are damaged: " + std::string(reason) + "; the file is now " +
                    vesk::quoted(target.toStdString()));
}

void OptionVariables::saveIfChanged() {
  if (!changed_ || folder_.empty()) return;
  if (file_ == File::Untouchable) {
    return warnOnce(vesk::quoted(path()) + " is left as it was");
  }
  const std::string problem = write();
  if (!problem.empty()) return warnOnce(vesk::quoted(path()) + ": " + problem);
  changed_ = false;
  warned_ = false;
}

void OptionVariables::warnOnce(const std::string& text) {
  if (warned_) return;
  warned_ = true;
  messages_.warning("changes of option variables are not saved: " + text);
}

/// Gives the reason when it fails.
std::string OptionVariables::write() const {
  QJsonObject variables;
  for (const auto& [name, value] : values_) {
    variables[QString::fromStdString(name)] = std::visit(ToJson{}, value);
  }
  const QJsonObject root{{"version", kFormatVersion}, {"variables", variables}};
  const QByteArray bytes = QJsonDocument(root).toJson();

  if (!QDir().mkpath(QString::fromStdString(folder_))) return "the folder cannot be made";
  QSaveFile file(QString::fromStdString(path()));
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
    return file.errorString().toStdString();
  }
  return {};
}

}  // namespace vesk

#include "standalone/host/engine/OptionVariables.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLockFile>
#include <charconv>
#include <limits>
#include <optional>

#include "standalone/host/engine/AtomicFile.h"
#include "standalone/host/engine/JsonFile.h"
#include "standalone/host/engine/Messages.h"
#include "standalone/host/engine/ResultValue.h"
#include "standalone/host/language/Tokenizer.h"

namespace vesk {
namespace {

constexpr int kFormatVersion = 1;
constexpr int kMillisecondsForALock = 5000;

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

QJsonObject toObject(const Values& values) {
  QJsonObject variables;
  for (const auto& [name, value] : values) {
    variables[QString::fromStdString(name)] = std::visit(ToJson{}, value);
  }
  return variables;
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

OptionVariables::OptionVariables(std::string folder, MessageChannel& messages,
                                 std::chrono::milliseconds interval)
    : folder_(std::move(folder)), messages_(messages), interval_(interval) {}

OptionVariables::~OptionVariables() { saveIfChanged(); }

std::string OptionVariables::path() const { return folder_ + "/optionVars.json"; }

bool OptionVariables::read() {
  if (file_ == File::Read) return true;
  std::optional<Values> stored;
  const std::string reason = folder_.empty() ? "" : load(stored);
  file_ = reason.empty() ? File::Read : File::Unreadable;
  if (stored) values_ = std::move(*stored);
  if (!reason.empty()) {
    messages_.error("the option variables in " + vesk::quoted(path()) +
                    " cannot be read: " + reason);
  }
  return reason.empty();
}

void OptionVariables::readOnce() {
  if (file_ == File::Unread) read();
}

const Value* OptionVariables::find(std::string_view name) {
  readOnce();
  const auto found = values_.find(name);
  return found == values_.end() ? nullptr : &found->second;
}

std::vector<std::string> OptionVariables::names() {
  readOnce();
  std::vector<std::string> names;
  for (const auto& [name, value] : values_) names.push_back(name);
  return names;
}

bool OptionVariables::set(const std::string& name, Value value) {
  return change(name, std::move(value));
}

bool OptionVariables::remove(std::string_view name) {
  return find(name) && change(std::string(name), std::nullopt);
}

/// No value: removes the one that is there.
bool OptionVariables::change(const std::string& name, std::optional<Value> value) {
  if (!read()) return false;
  const Value* found = find(name);
  std::optional<Value> before = found ? std::optional(*found) : std::nullopt;
  put(name, std::move(value));
  const bool first = changed_.insert(name).second;
  if (!saveFailed_ && Clock::now() < nextSave_) return true;

  const std::string reason = save();
  if (reason.empty()) return true;
  put(name, std::move(before));
  if (first) changed_.erase(name);
  tellUnsaved(reason);
  return false;
}

void OptionVariables::put(const std::string& name, std::optional<Value> value) {
  if (value) {
    values_.insert_or_assign(name, std::move(*value));
  } else {
    values_.erase(name);
  }
}

void OptionVariables::saveIfChanged() {
  const bool told = saveFailed_;
  const std::string reason = save();
  if (!reason.empty() && !told) tellUnsaved(reason);
}

void OptionVariables::saveSometimes() {
  if (Clock::now() >= nextSave_) saveIfChanged();
}

void OptionVariables::tellUnsaved(const std::string& reason) {
  messages_.error("option variables cannot be saved in " + vesk::quoted(path()) + ": " + reason);
}

/// Gives the reason when it fails.
std::string OptionVariables::save() {
  if (changed_.empty() || folder_.empty()) return {};
  std::string reason = write();
  saveFailed_ = !reason.empty();
  if (!saveFailed_) changed_.clear();
  nextSave_ = Clock::now() + interval_;
  return reason;
}

std::string OptionVariables::write() {
  if (!QDir().mkpath(QString::fromStdString(folder_))) return "the folder cannot be made";
  // Between reading and writing no other program may write. Where no lock can be made, no file can
  // be written either, and writing knows the reason.
  QLockFile lock(QString::fromStdString(path() + ".lock"));
  if (!lock.tryLock(kMillisecondsForALock) && lock.error() == QLockFile::LockFailedError) {
    return "another program is writing it";
  }
  std::optional<Values> stored;
  if (std::string reason = load(stored); !reason.empty()) return reason;
  if (stored) {
    const QJsonObject before = toObject(*stored);
    takeOver(std::move(*stored));
    if (toObject(values_) == before) return {};
  }
  const QJsonObject root{{"version", kFormatVersion}, {"variables", toObject(values_)}};
  return writeAtomically(path(), QJsonDocument(root).toJson().toStdString());
}

/// Takes the values that other programs stored, under those that changed here.
void OptionVariables::takeOver(Values stored) {
  std::swap(values_, stored);
  for (const std::string& name : changed_) {
    const auto here = stored.find(name);
    put(name, here == stored.end() ? std::nullopt : std::optional(std::move(here->second)));
  }
}

/// Reads what the file holds; nothing when there is no file or a damaged one, which is moved aside.
/// Gives the reason when the file cannot be read and must stay as it is.
std::string OptionVariables::load(std::optional<Values>& values) {
  const JsonFile file = readJsonFile(path());
  if (file.state == JsonFile::State::Missing) return {};
  if (file.state == JsonFile::State::Unreadable) return file.reason;
  if (file.state == JsonFile::State::Damaged) return moveAside(file.reason);

  const QJsonValue version = file.object["version"];
  if (!version.isDouble()) return moveAside("\"version\" is missing or no number");
  if (version.toDouble() != kFormatVersion) {
    return "its format version is not " + std::to_string(kFormatVersion);
  }
  Values read;
  if (const std::string damage = readValues(file.object, read); !damage.empty()) {
    return moveAside(damage);
  }
  values = std::move(read);
  return {};
}

std::string OptionVariables::moveAside(std::string_view damage) {
  const QString damaged = QString::fromStdString(path() + ".damaged");
  QString target = damaged;
  for (int i = 1; QFileInfo::exists(target); ++i) target = damaged + QString::number(i);
  if (!QFile::rename(QString::fromStdString(path()), target)) {
    return std::string(damage) + "; it cannot be moved aside";
  }
  messages_.warning("the option variables in " + vesk::quoted(path()) +
                    " are damaged: " + std::string(damage) + "; the file is now " +
                    vesk::quoted(target.toStdString()));
  return {};
}

}  // namespace vesk

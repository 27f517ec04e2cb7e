#include "standalone/workspace/WorkspaceFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <set>

#include "standalone/host/engine/JsonFile.h"
#include "standalone/host/language/Tokenizer.h"

namespace vesk {
namespace {

constexpr int kVersion = 1;
constexpr int kLargestSize = 16384;  // of a panel, in pixels

struct TextField {
  const char* key;
  std::string PanelSettings::*field;
};
struct SizeField {
  const char* key;
  int PanelSettings::*field;
};
struct FlagField {
  const char* key;
  bool PanelSettings::*field;
};

constexpr TextField kTexts[] = {{"name", &PanelSettings::name},
                                {"label", &PanelSettings::label},
                                {"uiScript", &PanelSettings::uiScript},
                                {"requiredPlugin", &PanelSettings::requiredPlugin},
                                {"pluginPath", &PanelSettings::pluginPath}};
constexpr SizeField kSizes[] = {{"initialWidth", &PanelSettings::initialWidth},
                                {"initialHeight", &PanelSettings::initialHeight}};
constexpr FlagField kFlags[] = {{"retain", &PanelSettings::retain},
                                {"deleteLater", &PanelSettings::deleteLater},
                                {"loadImmediately", &PanelSettings::loadImmediately},
                                {"floating", &PanelSettings::floating},
                                {"visible", &PanelSettings::visible}};

QJsonObject panelObject(const PanelSettings& panel) {
  QJsonObject object;
  for (const auto& [key, field] : kTexts) object[key] = QString::fromStdString(panel.*field);
  for (const auto& [key, field] : kSizes) object[key] = panel.*field;
  for (const auto& [key, field] : kFlags) object[key] = panel.*field;
  return object;
}

/// What is wrong with the object; empty when nothing is.
std::string readPanel(const QJsonObject& object, PanelSettings& panel) {
  for (const auto& [key, field] : kTexts) {
    if (!object[key].isString()) return std::string("a panel has no text \"") + key + '"';
    panel.*field = object[key].toString().toStdString();
  }
  for (const auto& [key, field] : kSizes) {
    panel.*field = object[key].toInt();
    if (panel.*field < 1 || panel.*field > kLargestSize) {
      return std::string("a panel has no size \"") + key + '"';
    }
  }
  for (const auto& [key, field] : kFlags) {
    if (!object[key].isBool()) return std::string("a panel has no truth value \"") + key + '"';
    panel.*field = object[key].toBool();
  }
  return panel.name.empty() ? "a panel has an empty name" : "";
}

std::string readPanels(const QJsonValue& value, std::vector<PanelSettings>& panels) {
  if (!value.isArray()) return "it has no list \"panels\"";
  std::set<std::string> names;
  for (const QJsonValue& entry : value.toArray()) {
    PanelSettings panel;
    const std::string problem = readPanel(entry.toObject(), panel);
    if (!problem.empty()) return problem;
    if (!names.insert(panel.name).second) return "two panels are named " + vesk::quoted(panel.name);
    panels.push_back(std::move(panel));
  }
  return {};
}

QByteArray bytes(const QJsonValue& value) {
  return QByteArray::fromBase64(value.toString().toLatin1());
}

std::string readState(const QJsonObject& object, WorkspaceState& state) {
  if (object["version"].toInt() != kVersion) {
    return "its version is not " + std::to_string(kVersion);
  }
  state.geometry = bytes(object["geometry"]);
  state.arrangement = bytes(object["arrangement"]);
  return readPanels(object["panels"], state.panels);
}

}  // namespace

std::string workspaceText(const WorkspaceState& state) {
  QJsonArray panels;
  for (const PanelSettings& panel : state.panels) panels.append(panelObject(panel));
  const QJsonObject object{{"version", kVersion},
                           {"geometry", QString::fromLatin1(state.geometry.toBase64())},
                           {"arrangement", QString::fromLatin1(state.arrangement.toBase64())},
                           {"panels", panels}};
  return QJsonDocument(object).toJson().toStdString();
}

std::optional<WorkspaceState> readWorkspaceFile(const std::string& path, std::string& reason) {
  const JsonFile file = readJsonFile(path);
  reason = file.reason;
  if (file.state != JsonFile::State::Read) return std::nullopt;
  WorkspaceState state;
  reason = readState(file.object, state);
  if (!reason.empty()) return std::nullopt;
  return state;
}

}  // namespace vesk

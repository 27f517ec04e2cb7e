#include "standalone/host/engine/StringCatalogues.h"

#include <algorithm>

#include "standalone/host/engine/JsonFile.h"
#include "standalone/host/engine/Messages.h"
#include "standalone/host/language/Tokenizer.h"

namespace vesk {
namespace {

bool isFileName(std::string_view text) {
  return !text.empty() && !text.starts_with('.') && text.find('/') == text.npos;
}

/// "de_AT" and "de" for any of "de_AT", "de-AT" and "de_AT.UTF-8".
std::vector<std::string> languagesFor(std::string_view language) {
  std::string name(language.substr(0, language.find_first_of(".@")));
  std::replace(name.begin(), name.end(), '-', '_');
  std::vector<std::string> languages;
  while (isFileName(name)) {
    languages.push_back(name);
    const std::size_t split = name.rfind('_');
    name.resize(split == name.npos ? 0 : split);
  }
  return languages;
}

}  // namespace

StringCatalogues::StringCatalogues(std::vector<std::string> folders, std::string_view language,
                                   MessageChannel& messages)
    : folders_(std::move(folders)), languages_(languagesFor(language)), messages_(messages) {}

void StringCatalogues::registerText(std::string_view pluginId, std::string_view key,
                                    std::string_view defaultText) {
  plugins_[std::string(pluginId)].defaults[std::string(key)] = defaultText;
}

std::optional<std::string> StringCatalogues::lookup(std::string_view pluginId,
                                                    std::string_view key) {
  const auto plugin = plugins_.find(pluginId);
  if (plugin == plugins_.end()) return {};
  PluginTexts& texts = plugin->second;
  const auto registered = texts.defaults.find(key);
  if (registered == texts.defaults.end()) return {};
  if (!texts.loaded) load(pluginId, texts);
  const auto translated = texts.translations.find(key);
  return translated == texts.translations.end() ? registered->second : translated->second;
}

void StringCatalogues::load(std::string_view pluginId, PluginTexts& texts) {
  texts.loaded = true;
  if (!isFileName(pluginId)) return;
  for (const std::string& language : languages_) {
    for (const std::string& folder : folders_) {
      loadFile(folder + "/" + language + "/" + std::string(pluginId) + ".json", texts.translations);
    }
  }
}

/// Adds the texts whose keys are new; all or none.
void StringCatalogues::loadFile(const std::string& path, StringMap<std::string>& translations) {
  JsonFile file = readJsonFile(path);
  StringMap<std::string> read;
  for (auto it = file.object.begin(); it != file.object.end(); ++it) {
    const std::string key = it.key().toStdString();
    const std::string text = it.value().toString().toStdString();
    if (!it.value().isString()) file.reason = vesk::quoted(key) + " has no text";
    if (!text.empty()) read.emplace(key, text);  // an empty text waits for its translator
  }
  if (file.reason.empty()) return translations.merge(read);
  messages_.warning("the catalogue " + vesk::quoted(path) + " is not used: " + file.reason);
}

}  // namespace vesk

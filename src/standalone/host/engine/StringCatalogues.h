#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standalone/host/language/StringHash.h"

namespace vesk {

class MessageChannel;

/// The texts that modules registered, in the user's language where a catalogue has them.
///
/// A catalogue is the file `<folder>/<language>/<plug-in id>.json`, an object of texts by key; it
/// is read when the first text of that plug-in is asked for. "de_AT" is looked up before "de", and
/// an earlier folder before a later one.
class StringCatalogues {
 public:
  /// Without a language all texts stay as registered.
  StringCatalogues(std::vector<std::string> folders, std::string_view language,
                   MessageChannel& messages);

  /// Registering again replaces the default text.
  void registerText(std::string_view pluginId, std::string_view key, std::string_view defaultText);

  /// The translated text, else the default text; nothing for a text that was not registered.
  std::optional<std::string> lookup(std::string_view pluginId, std::string_view key);

 private:
  struct PluginTexts {
    StringMap<std::string> defaults;
    StringMap<std::string> translations;
    bool loaded = false;
  };

  void load(std::string_view pluginId, PluginTexts& texts);
  void loadFile(const std::string& path, StringMap<std::string>& translations);

  const std::vector<std::string> folders_;
  const std::vector<std::string> languages_;  ///< the most particular first
  MessageChannel& messages_;
  StringMap<PluginTexts> plugins_;
};

}  // namespace vesk

#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/OpenVesk/KFnPlugin.h"
#include "standalone/host/language/StringHash.h"

namespace vesk {

class Plugin;

/// A command that lines can name.
struct CommandEntry {
  std::string name;
  KFnPlugin::Creator creator = nullptr;
  KSyntax syntax;                 ///< built once, when the command was registered
  const Plugin* owner = nullptr;  ///< null for the host's own
  std::string summary;            ///< one sentence; empty for a plug-in's command
};

class CommandRegistry {
 public:
  enum class Outcome { Registered, NameTaken, BadName };

  Outcome add(CommandEntry entry);

  /// False when this owner has no command of that name.
  bool remove(std::string_view name, const Plugin* owner);

  /// Removes all commands of a plug-in.
  void removeAllOf(const Plugin* owner);

  /// The names of one owner's commands, sorted.
  std::vector<std::string> namesOf(const Plugin* owner) const;
  bool hasCommandOf(const Plugin* owner) const;

  /// Null for an unknown name. Command objects share the entry, which outlives its removal.
  std::shared_ptr<const CommandEntry> find(std::string_view name) const;

  /// All names, sorted.
  std::vector<std::string> names() const;

 private:
  template <class Predicate>
  std::vector<std::string> sortedNames(Predicate belongs) const;

  StringMap<std::shared_ptr<const CommandEntry>> entries_;
};

}  // namespace vesk

struct KPxCommand::Rep {
  std::shared_ptr<const vesk::CommandEntry> entry;
};

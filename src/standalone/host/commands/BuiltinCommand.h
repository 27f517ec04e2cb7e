#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/OpenVesk/KArgDatabase.h"
#include "platform/OpenVesk/KPxCommand.h"
#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/engine/HostSession.h"

namespace vesk {

/// One flag of a command's table; unused argument positions are left out.
struct FlagRow {
  const char* shortName;
  const char* longName;
  ArgType arguments[3] = {};
  bool multiUse = false;
};

/// A command's record: what `help` and the syntax are made of.
struct CommandRecord {
  const char* name;
  const char* summary;
  std::span<const FlagRow> flags = {};
  std::span<const ArgType> arguments = {};
  bool query = false;
  bool edit = false;
  bool repeatsLastArgument = false;
};

KSyntax makeSyntax(const CommandRecord& record);

/// The base of the host's own commands. A derived class has a static `kRecord` and the operation
/// `run`, which is called once with arguments that fit.
class BuiltinCommand : public KPxCommand {
 public:
  KStatus doIt(const KArgList& arguments) final;

 protected:
  virtual KStatus run(const KArgDatabase& arguments) = 0;

  /// Called in its place when the arguments do not fit; what fits of them can be read.
  virtual void misfit(const KArgDatabase& /*arguments*/) {}

  static HostSession& session() { return *HostSession::current(); }

  /// How many flags of a table were given.
  static std::size_t flagsGiven(const KArgDatabase& arguments, std::span<const FlagRow> flags);

  /// Shows an error, with the command's name ahead, and gives `StatusFailure`.
  static KStatus fail(std::string_view message);

  /// Sets the result of the running command, of any kind.
  static void setValue(ResultValue value);

  static std::string flagText(const KArgDatabase& arguments, const char* flag, unsigned index = 0);
  static int flagInt(const KArgDatabase& arguments, const char* flag, unsigned index = 0);
  static bool flagBool(const KArgDatabase& arguments, const char* flag, unsigned index = 0);
  static double flagDouble(const KArgDatabase& arguments, const char* flag, unsigned index = 0);

  /// The positional arguments, in order.
  static std::vector<std::string> positionalTexts(const KArgDatabase& arguments);
};

/// Registers a command of the host's own.
template <class Command>
void registerBuiltin(CommandRegistry& registry) {
  registry.add({Command::kRecord.name, [] { return static_cast<KPxCommand*>(new Command); },
                makeSyntax(Command::kRecord), nullptr, Command::kRecord.summary});
}

// One a file of commands.
void registerUndoCommands(CommandRegistry& registry);
void registerSceneCommands(CommandRegistry& registry);
void registerFileCommand(CommandRegistry& registry);
void registerOptionVarCommand(CommandRegistry& registry);
void registerInformationCommands(CommandRegistry& registry);
void registerPluginCommands(CommandRegistry& registry);
void registerSessionCommands(CommandRegistry& registry);

}  // namespace vesk

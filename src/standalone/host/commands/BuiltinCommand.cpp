#include "standalone/host/commands/BuiltinCommand.h"

#include <algorithm>

namespace vesk {

KSyntax makeSyntax(const CommandRecord& record) {
  KSyntax syntax;
  SyntaxData& data = HostAccess::data(syntax);
  for (const FlagRow& row : record.flags) {
    FlagSpec flag{.shortName = row.shortName, .longName = row.longName, .multiUse = row.multiUse};
    for (const ArgType type : row.arguments) {
      if (type != ArgType{}) flag.arguments.push_back(type);
    }
    data.addFlag(std::move(flag));
  }
  for (const ArgType type : record.arguments) data.addArgument(type);
  if (record.repeatsLastArgument) data.repeatLastArgument();
  data.enableQuery(record.query);
  data.enableEdit(record.edit);
  return syntax;
}

KStatus BuiltinCommand::doIt(const KArgList& arguments) {
  KStatus status;
  const KArgDatabase database(syntax(), arguments, &status);
  if (status) return run(database);
  misfit(database);
  return status;
}

std::size_t BuiltinCommand::flagsGiven(const KArgDatabase& arguments,
                                       std::span<const FlagRow> flags) {
  return std::ranges::count_if(
      flags, [&](const FlagRow& row) { return arguments.isFlagSet(row.shortName); });
}

KStatus BuiltinCommand::fail(std::string_view message) {
  HostSession& host = session();
  host.messages().error(std::string(host.engine().runningCommand()) + ": " + std::string(message));
  return StatusFailure;
}

void BuiltinCommand::setValue(ResultValue value) {
  if (ResultValue* result = session().engine().runningResult()) *result = std::move(value);
}

std::string BuiltinCommand::flagText(const KArgDatabase& arguments, const char* flag,
                                     unsigned index) {
  KStatus status;
  const KString* text = HostAccess::parsed(arguments).flagArgument(flag, index, status);
  return text ? std::string(HostAccess::text(*text)) : std::string();
}

int BuiltinCommand::flagInt(const KArgDatabase& arguments, const char* flag, unsigned index) {
  int value = 0;
  arguments.getFlagArgument(flag, index, value);
  return value;
}

bool BuiltinCommand::flagBool(const KArgDatabase& arguments, const char* flag, unsigned index) {
  bool value = false;
  arguments.getFlagArgument(flag, index, value);
  return value;
}

double BuiltinCommand::flagDouble(const KArgDatabase& arguments, const char* flag, unsigned index) {
  double value = 0;
  readDouble(flagText(arguments, flag, index), value);
  return value;
}

std::vector<std::string> BuiltinCommand::positionalTexts(const KArgDatabase& arguments) {
  const ParsedArguments& parsed = HostAccess::parsed(arguments);
  std::vector<std::string> texts;
  for (unsigned i = 0; i < parsed.positionalCount(); ++i) {
    texts.emplace_back(HostAccess::text(*parsed.positional(i)));
  }
  return texts;
}

}  // namespace vesk

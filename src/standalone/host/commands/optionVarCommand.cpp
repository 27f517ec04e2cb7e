#include <algorithm>

#include "standalone/host/commands/BuiltinCommand.h"
#include "standalone/host/engine/OptionVariables.h"

namespace vesk {
namespace {

constexpr FlagRow kFlags[] = {{"-ex", "-exists", {KSyntax::ArgString}},
                              {"-q", "-query", {KSyntax::ArgString}},
                              {"-iv", "-intValue", {KSyntax::ArgString, KSyntax::ArgInteger}},
                              {"-fv", "-floatValue", {KSyntax::ArgString, kArgDouble}},
                              {"-sv", "-stringValue", {KSyntax::ArgString, KSyntax::ArgString}},
                              {"-rm", "-remove", {KSyntax::ArgString}},
                              {"-l", "-list"}};

class OptionVarCommand : public BuiltinCommand {
 public:
  static constexpr CommandRecord kRecord{
      "optionVar", "Asks and sets the values that outlive the program.", kFlags};

 private:
  static OptionVariables& variables() { return session().optionVariables(); }

  KStatus run(const KArgDatabase& arguments) override {
    const auto isSet = [&](const FlagRow& row) { return arguments.isFlagSet(row.shortName); };
    if (std::ranges::count_if(kFlags, isSet) != 1) return fail("one of its flags is needed");
    if (!variables().read()) return StatusFailure;
    const FlagRow& action = *std::ranges::find_if(kFlags, isSet);
    return carryOut(action.shortName, arguments);
  }

  static KStatus carryOut(std::string_view action, const KArgDatabase& arguments) {
    const std::string name = flagText(arguments, action.data());
    if (action == "-l") {
      setValue(variables().names());
    } else if (action == "-ex") {
      setValue(variables().find(name) ? 1 : 0);
    } else if (action == "-q") {
      return query(name);
    } else if (action == "-rm") {
      return variables().find(name) ? kept(variables().remove(name)) : refuseUnknown(name);
    } else {
      return set(name, action, arguments);
    }
    return StatusSuccess;
  }

  static KStatus query(const std::string& name) {
    const OptionVariables::Value* value = variables().find(name);
    if (!value) return refuseUnknown(name);
    std::visit([](const auto& typed) { setValue(typed); }, *value);
    return StatusSuccess;
  }

  static KStatus set(const std::string& name, std::string_view action,
                     const KArgDatabase& arguments) {
    if (name.empty()) return fail("the name is empty");
    if (action == "-iv") return kept(variables().set(name, flagInt(arguments, "-iv", 1)));
    if (action == "-fv") return kept(variables().set(name, flagDouble(arguments, "-fv", 1)));
    return kept(variables().set(name, flagText(arguments, "-sv", 1)));
  }

  static KStatus kept(bool done) { return done ? StatusSuccess : StatusFailure; }

  static KStatus refuseUnknown(const std::string& name) {
    return fail("no option variable is named " + quoted(name));
  }
};

}  // namespace

void registerOptionVarCommand(CommandRegistry& registry) {
  registerBuiltin<OptionVarCommand>(registry);
}

}  // namespace vesk

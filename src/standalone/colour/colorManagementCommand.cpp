#include "standalone/colour/colorManagementCommand.h"

#include "standalone/colour/ColourService.h"
#include "standalone/host/commands/BuiltinCommand.h"

namespace vesk::colour {
namespace {

constexpr FlagRow kFlags[] = {
    {"-en", "-enable", {KSyntax::ArgBoolean}},
    {"-ms", "-mixingSpace", {KSyntax::ArgString}},
    {"-v", "-view", {KSyntax::ArgString}},
    {"-lms", "-listMixingSpaces"},
    {"-lv", "-listViews"},
    {"-cf", "-configuration"},
};

class ColorManagementCommand : public BuiltinCommand {
 public:
  static constexpr CommandRecord kRecord{
      "colorManagement",
      "Turns colour management on and off, chooses mixing space and view, and tells of them.",
      kFlags,
      {},
      true};

 private:
  KStatus run(const KArgDatabase& arguments) override {
    ColourService* service = ColourService::current();
    if (!service) return fail("there is no colour management");
    if (flagsGiven(arguments, kFlags) != 1) return fail("say one thing to ask or change");
    if (arguments.isFlagSet("-en")) return enable(arguments, *service);
    if (arguments.isFlagSet("-cf")) return tell(service->configuration().path);
    if (!service->isEnabled()) return fail("colour management is off");
    if (arguments.isFlagSet("-lms")) return listSpaces(*service);
    if (arguments.isFlagSet("-lv")) return tell(service->mixingSpace().views);
    if (arguments.isQuery()) {
      const MixingSpace& space = service->mixingSpace();
      return tell(arguments.isFlagSet("-ms") ? space.name : space.view);
    }
    return arguments.isFlagSet("-ms") ? service->setMixingSpace(flagText(arguments, "-ms"))
                                      : service->setView(flagText(arguments, "-v"));
  }

  static KStatus enable(const KArgDatabase& arguments, ColourService& service) {
    if (arguments.isQuery()) return tell(service.isEnabled());
    service.setEnabled(flagBool(arguments, "-en"));
    return StatusSuccess;
  }

  static KStatus listSpaces(const ColourService& service) {
    std::vector<std::string> names;
    for (const MixingSpace& space : service.mixingSpaces()) names.push_back(space.name);
    return tell(std::move(names));
  }

  static KStatus tell(ResultValue value) {
    setValue(std::move(value));
    return StatusSuccess;
  }
};

}  // namespace

void registerColorManagementCommand(CommandRegistry& registry) {
  registerBuiltin<ColorManagementCommand>(registry);
}

}  // namespace vesk::colour

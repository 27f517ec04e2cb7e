#include <algorithm>

#include "standalone/host/commands/BuiltinCommand.h"
#include "standalone/host/scene/Scene.h"

namespace vesk {
namespace {

constexpr FlagRow kActions[] = {{"-n", "-new"},
                                {"-o", "-open", {KSyntax::ArgString}},
                                {"-s", "-save"},
                                {"-sa", "-saveAs", {KSyntax::ArgString}}};
constexpr FlagRow kFlags[] = {kActions[0],      kActions[1],     kActions[2],        kActions[3],
                              {"-f", "-force"}, {"-p", "-path"}, {"-m", "-modified"}};

class FileCommand : public BuiltinCommand {
 public:
  static constexpr CommandRecord kRecord{
      "file", "Begins, opens and saves the scene, and tells its path and state.", kFlags, {}, true};

 private:
  static Scene& scene() { return session().scene(); }

  KStatus run(const KArgDatabase& arguments) override {
    const auto isSet = [&](const FlagRow& row) { return arguments.isFlagSet(row.shortName); };
    const auto actions = std::ranges::count_if(kActions, isSet);
    if (arguments.isQuery()) {
      return actions > 0 ? fail("only -path and -modified can be queried") : query(arguments);
    }
    if (actions != 1) return fail("one of -new, -open, -save and -saveAs is needed");
    if (arguments.isFlagSet("-p") || arguments.isFlagSet("-m")) {
      return fail("-path and -modified need query mode (-q)");
    }
    return arguments.isFlagSet("-n") || arguments.isFlagSet("-o") ? replace(arguments)
                                                                  : save(arguments);
  }

  static KStatus query(const KArgDatabase& arguments) {
    if (arguments.isFlagSet("-p") == arguments.isFlagSet("-m")) {
      return fail("say what to query: -path or -modified");
    }
    if (arguments.isFlagSet("-p")) {
      setValue(scene().path());
    } else {
      setValue(scene().isModified());
    }
    return StatusSuccess;
  }

  static KStatus replace(const KArgDatabase& arguments) {
    const std::string path = flagText(arguments, "-o");
    if (arguments.isFlagSet("-o") && path.empty()) return fail("the path is empty");
    UndoQueue& undoQueue = session().undoQueue();
    if (undoQueue.isUndoing() || undoQueue.isRedoing()) return fail("an undo or redo is running");
    if (scene().isModified() && !arguments.isFlagSet("-f")) return refuseToDrop();
    const KStatus status = arguments.isFlagSet("-o") ? scene().open(path) : scene().startNew();
    if (status) undoQueue.clear();
    return status;
  }

  static KStatus refuseToDrop() {
    const std::string path = scene().path();
    return fail("the scene " + (path.empty() ? "that has no file yet" : quoted(path)) +
                " has unsaved changes; save it, or drop them with -force");
  }

  static KStatus save(const KArgDatabase& arguments) {
    if (arguments.isFlagSet("-f")) return fail("-force goes with -new and -open");
    if (arguments.isFlagSet("-s")) {
      if (scene().path().empty()) return fail("the scene has no file yet; use -saveAs");
      return scene().save(scene().path());
    }
    const std::string path = flagText(arguments, "-sa");
    return path.empty() ? fail("the path is empty") : scene().save(path);
  }
};

}  // namespace

void registerFileCommand(CommandRegistry& registry) { registerBuiltin<FileCommand>(registry); }

}  // namespace vesk

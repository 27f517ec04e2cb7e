#include <algorithm>
#include <optional>

#include "standalone/host/commands/BuiltinCommand.h"
#include "standalone/host/scene/NodePatterns.h"
#include "standalone/host/scene/Scene.h"
#include "standalone/host/scene/SelectionEdit.h"

namespace vesk {
namespace {

using Nodes = std::vector<SceneNodePtr>;

constexpr ArgType kOneText[] = {KSyntax::ArgString};
constexpr ArgType kTwoTexts[] = {KSyntax::ArgString, KSyntax::ArgString};

/// What the undoable commands share. Undo and redo can fail only where lines that ran without undo
/// came between; they then change nothing and name the node in the way.
class SceneEditCommand : public BuiltinCommand {
 public:
  bool isUndoable() const override { return true; }

 protected:
  static Scene& scene() { return session().scene(); }

  static KStatus refuse(const SceneNode& node, std::string_view reason) {
    session().messages().error("node " + quoted(node.name()) + ": " + std::string(reason));
    return StatusFailure;
  }

  static KStatus insertAll(const Nodes& nodes) {
    for (std::size_t i = 0; i < nodes.size(); ++i) {
      if (scene().insert(nodes[i])) continue;
      const bool here = nodes[i]->isInScene();
      const KStatus status = refuse(
          *nodes[i], here ? "it is in the scene already" : "another node has its name or its UUID");
      while (i > 0) scene().remove(nodes[--i]);
      return status;
    }
    return StatusSuccess;
  }

  static KStatus requireInScene(const Nodes& nodes) {
    for (const SceneNodePtr& node : nodes) {
      if (!node->isInScene()) return refuse(*node, "it is not in the scene any more");
    }
    return StatusSuccess;
  }

  /// The nodes of these names and patterns. False, with the reason shown, if one fits no node.
  static bool resolve(const std::vector<std::string>& names, Nodes& nodes) {
    std::optional<std::string> missing;
    nodes = findNodes(scene(), names, missing);
    if (missing) fail("no node is named " + quoted(*missing));
    return !missing;
  }

  SelectionEdit selection_{scene()};
};

constexpr FlagRow kCreateNodeFlags[] = {{"-n", "-name", {KSyntax::ArgString}}};

class CreateNodeCommand : public SceneEditCommand {
 public:
  static constexpr CommandRecord kRecord{"createNode", "Creates a node of a type and selects it.",
                                         kCreateNodeFlags, kOneText};

  KStatus redoIt() override {
    const KStatus status = insertAll({node_});
    if (status) selection_.redo();
    return status;
  }

  KStatus undoIt() override {
    if (const KStatus status = requireInScene({node_}); !status) return status;
    selection_.undo();
    scene().remove(node_);
    return StatusSuccess;
  }

 private:
  KStatus run(const KArgDatabase& arguments) override {
    KString type;
    if (!arguments.getCommandArgument(0, type)) return fail("the node type is missing");
    const NodeType* known = scene().types().find(HostAccess::text(type));
    if (!known) return fail("unknown node type " + quoted(HostAccess::text(type)));
    node_ = scene().makeNode(*known, flagText(arguments, "-n"));
    scene().insert(node_);
    selection_.clear();
    selection_.select(node_);
    setValue(node_->name());
    return StatusSuccess;
  }

  SceneNodePtr node_;
};

class DeleteCommand : public SceneEditCommand {
 public:
  static constexpr CommandRecord kRecord{
      "delete", "Deletes the nodes of these names, or else the selected.",
      {},       kOneText,
      false,    false,
      true};

  KStatus redoIt() override {
    if (const KStatus status = requireInScene(nodes_); !status) return status;
    selection_.redo();
    for (const SceneNodePtr& node : nodes_) scene().remove(node);
    return StatusSuccess;
  }

  KStatus undoIt() override {
    const KStatus status = insertAll(nodes_);
    if (status) selection_.undo();
    return status;
  }

 private:
  KStatus run(const KArgDatabase& arguments) override {
    const std::vector<std::string> names = positionalTexts(arguments);
    if (!names.empty() && !resolve(names, nodes_)) return StatusFailure;
    if (names.empty()) nodes_ = scene().selection().nodes();
    if (nodes_.empty()) return fail("no names are given and nothing is selected");
    for (const SceneNodePtr& node : nodes_) {
      selection_.deselect(node);
      scene().remove(node);
    }
    return StatusSuccess;
  }

  Nodes nodes_;
};

class RenameCommand : public SceneEditCommand {
 public:
  static constexpr CommandRecord kRecord{
      "rename", "Renames a node and gives the name that it got.", {}, kTwoTexts};

  KStatus redoIt() override { return setName(after_); }
  KStatus undoIt() override { return setName(before_); }

 private:
  KStatus run(const KArgDatabase& arguments) override {
    const std::vector<std::string> names = positionalTexts(arguments);
    if (names.size() != 2) return fail("the name of a node and its new name are needed");
    if (names[1].empty()) return fail("the new name is empty");
    node_ = scene().find(names[0]);
    if (!node_) return fail("no node is named " + quoted(names[0]));
    before_ = node_->name();
    scene().rename(node_, names[1]);
    after_ = node_->name();
    setValue(after_);
    return StatusSuccess;
  }

  KStatus setName(const std::string& name) {
    if (const KStatus status = requireInScene({node_}); !status) return status;
    if (scene().setName(node_, name)) return StatusSuccess;
    return refuse(*node_, "another node has the name " + quoted(name));
  }

  SceneNodePtr node_;
  std::string before_;
  std::string after_;
};

constexpr FlagRow kSelectFlags[] = {
    {"-a", "-add"}, {"-tgl", "-toggle"}, {"-d", "-deselect"}, {"-cl", "-clear"}};

class SelectCommand : public SceneEditCommand {
 public:
  static constexpr CommandRecord kRecord{
      "select",     "Selects nodes in place of, or with a flag beside, those that are selected.",
      kSelectFlags, kOneText,
      false,        false,
      true};

  KStatus redoIt() override {
    selection_.redo();
    return StatusSuccess;
  }

  KStatus undoIt() override {
    selection_.undo();
    return StatusSuccess;
  }

 private:
  KStatus run(const KArgDatabase& arguments) override {
    const auto isSet = [&](const FlagRow& row) { return arguments.isFlagSet(row.shortName); };
    if (std::ranges::count_if(kSelectFlags, isSet) > 1) return fail("its flags exclude each other");
    const std::vector<std::string> names = positionalTexts(arguments);
    const bool clears = arguments.isFlagSet("-cl");
    if (clears && !names.empty()) return fail("-clear takes no names");
    if (!clears && names.empty()) return fail("no names are given");
    Nodes nodes;
    if (!resolve(names, nodes)) return StatusFailure;
    change(nodes, arguments);
    return StatusSuccess;
  }

  void change(const Nodes& nodes, const KArgDatabase& arguments) {
    const bool toggles = arguments.isFlagSet("-tgl");
    const bool deselects = arguments.isFlagSet("-d");
    if (!toggles && !deselects && !arguments.isFlagSet("-a")) selection_.clear();
    for (const SceneNodePtr& node : nodes) {
      if (deselects || (toggles && scene().selection().contains(*node))) {
        selection_.deselect(node);
      } else {
        selection_.select(node);
      }
    }
  }
};

constexpr FlagRow kLsFlags[] = {
    {"-t", "-type", {KSyntax::ArgString}}, {"-sl", "-selection"}, {"-u", "-uuid"}};

class LsCommand : public BuiltinCommand {
 public:
  static constexpr CommandRecord kRecord{
      "ls", "Lists the names of the nodes that fit.", kLsFlags, kOneText, false, false, true};

 private:
  KStatus run(const KArgDatabase& arguments) override {
    const std::string type = flagText(arguments, "-t");
    const bool anyType = !arguments.isFlagSet("-t");
    const bool uuids = arguments.isFlagSet("-u");
    std::vector<std::string> listed;
    for (const SceneNodePtr& node : candidates(arguments)) {
      if (anyType || node->type() == type) listed.push_back(uuids ? node->uuid() : node->name());
    }
    setValue(std::move(listed));
    return StatusSuccess;
  }

  static Nodes candidates(const KArgDatabase& arguments) {
    const Scene& scene = session().scene();
    const std::vector<std::string> names = positionalTexts(arguments);
    if (!arguments.isFlagSet("-sl")) {
      return findNodesInOrder(scene, names.empty() ? std::vector<std::string>{"*"} : names);
    }
    Nodes nodes = scene.selection().nodes();
    if (!names.empty()) {
      std::erase_if(nodes, [&](const SceneNodePtr& node) { return !fitsAny(node->name(), names); });
    }
    return nodes;
  }
};

}  // namespace

void registerSceneCommands(CommandRegistry& registry) {
  registerBuiltin<CreateNodeCommand>(registry);
  registerBuiltin<DeleteCommand>(registry);
  registerBuiltin<RenameCommand>(registry);
  registerBuiltin<SelectCommand>(registry);
  registerBuiltin<LsCommand>(registry);
}

}  // namespace vesk

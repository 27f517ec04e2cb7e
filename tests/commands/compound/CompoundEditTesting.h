#pragma once

#include <vector>

#include "platform/ORV_1_0/AnnotationList.h"
#include "platform/ORV_1_0/NodeList.h"
#include "tests/commands/compound/CompoundTesting.h"

/// Notes the rounds of changes that a graph tells of, one for each outermost bracket, with the
/// result that the running line has by then.
class ChangeRounds final : public orvlib::ChangeListener {
 public:
  explicit ChangeRounds(ORV_v1::Container& graph)
      : graph_(static_cast<orvlib::ContainerObject&>(graph)) {
    graph_.addListener(*this);
  }
  ~ChangeRounds() override { graph_.removeListener(*this); }
  void graphChanged(orvlib::ContainerObject&, std::span<const orvlib::NodeChange>) override {
    ++count;
    const vesk::ResultValue* result = vesk::HostSession::current()->engine().runningResult();
    results.push_back(result ? vesk::toJson(*result) : "no line runs");
  }

  int count = 0;
  hosttest::Texts results;

 private:
  orvlib::ContainerObject& graph_;
};

/// Undoes or redoes the command whose fields are open, as a line: what that makes its result is the
/// line's.
template <KStatus (orvCompoundCmd::*run)()>
class HeldCommand : public KPxCommand {
 public:
  static KPxCommand* creator() { return new HeldCommand; }
  KStatus doIt(const KArgList&) override {
    if (!resultBefore.empty()) appendToResult(KString(resultBefore.c_str()));
    return (OpenCompoundCmd::last->*run)();
  }
  bool isUndoable() const override { return false; }

  static inline std::string resultBefore;
};
using HeldUndo = HeldCommand<&orvCompoundCmd::undoIt>;
using HeldRedo = HeldCommand<&orvCompoundCmd::redoIt>;

/// What the tests of edits share: graphs to edit, and one command to hold and to drive by hand.
class CompoundEditTest : public CompoundTest {
 protected:
  using Texts = hosttest::Texts;

  CompoundEditTest() {
    addCommand("undoHeld", HeldUndo::creator);
    addCommand("redoHeld", HeldRedo::creator);
  }

  static constexpr const char* kNotEditable = "! The compound is not editable";
  static constexpr const char* kNotCreated = "! Failed to create compound";

  /// Adds `core::math::add` nodes of these names.
  void addNodes(const std::string& path, const Texts& names) {
    for (const std::string& name : names) {
      run(path, "-addNode core::math::add -renameNode add " + name);
    }
  }

  /// Makes compounds of these names, which hold nothing.
  void addCompounds(const std::string& path, const Texts& names) {
    for (const std::string& name : names) run(path, "-create " + name);
  }

  void connect(const char* source, const char* destination) {
    ORV_v1::AddRefWrapper<ORV_v1::Port> from, to;
    ASSERT_TRUE(graph.findPortsForConnection(source, destination, &from, &to));
    ASSERT_TRUE(to->addConnection(from, false));
  }

  ORV_v1::AddRefWrapper<ORV_v1::Node> node(const std::string& path) {
    return graph.findNodeFromPath(path.c_str());
  }
  ORV_v1::AddRefWrapper<ORV_v1::Compound> compound(const std::string& path) {
    const ORV_v1::AddRefWrapper<ORV_v1::Node> found = node(path);
    return found ? found->asCompound() : ORV_v1::AddRefWrapper<ORV_v1::Compound>();
  }

  /// The names of the children, in their order.
  Texts nodes(const std::string& path = "/") {
    Texts names;
    const ORV_v1::AddRefWrapper<ORV_v1::Compound> level = compound(path);
    if (!level) return {"no compound " + path};
    for (const auto& child : level->getChildNodes()) names.emplace_back(child->getName());
    return names;
  }
  Texts annotations(const std::string& path = "/") {
    Texts names;
    const ORV_v1::AddRefWrapper<ORV_v1::Compound> level = compound(path);
    if (!level) return {"no compound " + path};
    for (const auto& one : level->getAnnotations()) names.emplace_back(one->getName());
    return names;
  }

  /// The object itself, which a rename leaves as it is.
  const ORV_v1::Node* identity(const std::string& path) { return node(path).get(); }

  /// Runs the line with the command whose fields are open, and leaves it as `command()`.
  std::string runOpen(const std::string& path, const std::string& flags) {
    return host.run("openCompound g \"" + path + "\" " + flags);
  }
  static OpenCompoundCmd& command() { return *OpenCompoundCmd::last; }
  static KStatusCode redoIt() { return command().redoIt().statusCode(); }
  static KStatusCode undoIt() { return command().undoIt().statusCode(); }

  bool hasOpenBracket() const { return graph.activeChangeBracket(); }

  /// Runs the line, whatever comes of it, and says for each message whether a bracket of the
  /// compound was open when it was shown.
  std::vector<bool> bracketAtMessages(const std::string& path, const std::string& flags) {
    std::vector<bool> open;
    const ORV_v1::AddRefWrapper<ORV_v1::Compound> client = compound(path);
    vesk::MessageChannel& messages = host.session().messages();
    const auto sink = messages.addSink([&](const vesk::Message& message) {
      if (message.kind == vesk::MessageKind::Echo) return;
      open.push_back(client->activeChangeBracket());
    });
    host.status(line(path, flags));
    messages.removeSink(sink);
    host.takeMessages();
    return open;
  }
};

#pragma once

#include "tests/commands/compound/CompoundEditTesting.h"
#include "tests/commands/graph/NodeTesting.h"

/// Undoes or redoes the command whose fields are open, as a line: what that makes its result is the
/// line's.
template <KStatus (orvNodeCmd::*run)()>
class HeldNodeCommand : public KPxCommand {
 public:
  static KPxCommand* creator() { return new HeldNodeCommand; }
  KStatus doIt(const KArgList&) override {
    if (!resultBefore.empty()) appendToResult(KString(resultBefore.c_str()));
    return (OpenNodeCmd::last->*run)();
  }
  bool isUndoable() const override { return false; }

  static inline std::string resultBefore;
};
using HeldNodeUndo = HeldNodeCommand<&orvNodeCmd::undoIt>;
using HeldNodeRedo = HeldNodeCommand<&orvNodeCmd::redoIt>;

/// A graph with the node "a" (core::math::add: inputs "a", "b", output "result"), which has the
/// ports "own" and "out" beside, and the compound "box" with the node "in" of the same kind; and
/// one command to hold and to drive by hand.
class NodeEditTest : public NodeTest {
 protected:
  NodeEditTest() {
    addCommand("undoHeld", HeldNodeUndo::creator);
    addCommand("redoHeld", HeldNodeRedo::creator);
    build("/", "-an core::math::add -rn add a");
    build("/", "-create box");
    build("/box", "-an core::math::add -rn add in");
    run("/a", "-cip own float -cop out int");
    host.session().undoQueue().clear();
  }

  /// Runs the line with the command whose fields are open, and leaves it as `command()`.
  std::string runOpen(const std::string& path, const std::string& flags) {
    return host.run("openNode g \"" + path + "\" " + flags);
  }
  static OpenNodeCmd& command() { return *OpenNodeCmd::last; }
  static KStatusCode redoIt() { return command().redoIt().statusCode(); }
  static KStatusCode undoIt() { return command().undoIt().statusCode(); }

  /// Whether the node has the flag of that key on.
  bool isOn(const std::string& path, char key) {
    const NodeHandle found = node(path);
    const ORV_v1::NodeStateFlags& flags = found->getStateFlags();
    for (unsigned int i = 0; i < flags.size(); ++i) {
      if (flags[i].key == key) return flags[i].state == 0;
    }
    ADD_FAILURE() << "no flag " << key;
    return false;
  }

  /// What the library was asked for while `work` ran, without the single edits.
  template <class Work>
  static Texts askedBy(const Work& work) {
    constexpr unsigned kNever = 1'000'000;
    const orvlib::ArmedFault counting(kNever);
    work();
    Texts names;
    for (const std::string_view name : orvlib::FaultPoints::askedNames()) {
      const bool command = name.ends_with(" redo") || name.ends_with(" undo");
      if (command || name == "edit setState" || name.ends_with(" doit")) names.emplace_back(name);
    }
    return names;
  }
};

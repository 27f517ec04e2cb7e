#pragma once

#include <string>

#include "tests/commands/CommandTesting.h"

/// The command, with what a line leaves in the object to look at. Each new object is the `last`
/// until it is deleted.
class OpenCompoundCmd : public orvCompoundCmd {
 public:
  OpenCompoundCmd() { last = this; }
  ~OpenCompoundCmd() override {
    if (last == this) last = nullptr;
  }
  static KPxCommand* creator() { return new OpenCompoundCmd; }

  using orvCompoundCmd::NodeRename;

  using orvCompoundCmd::annotationsToMove;
  using orvCompoundCmd::compoundPath;
  using orvCompoundCmd::compoundsToExplode;
  using orvCompoundCmd::containerName;
  using orvCompoundCmd::createdStateInputPort;
  using orvCompoundCmd::createdStateOutputPort;
  using orvCompoundCmd::editFlags;
  using orvCompoundCmd::listConnectedTo;
  using orvCompoundCmd::listConnectedValue;
  using orvCompoundCmd::listNodesFlags;
  using orvCompoundCmd::listPortConnectedValue;
  using orvCompoundCmd::listPortsFlags;
  using orvCompoundCmd::nodesToMove;
  using orvCompoundCmd::queriedPortName;
  using orvCompoundCmd::queryFlags;
  using orvCompoundCmd::renames;
  using orvCompoundCmd::resetToFactoryNodes;
  using orvCompoundCmd::saveOrPublishName;

  static inline OpenCompoundCmd* last = nullptr;
};

/// Lines of `orvCompound` on the graph "g".
class CompoundTest : public CommandTest {
 protected:
  CompoundTest() { addCommand("openCompound", OpenCompoundCmd::creator); }

  using CommandTest::addCommand;
  void addCommand(const char* name, KFnPlugin::Creator creator) {
    addCommand(name, creator, orvCompoundCmd::createSyntax());
  }

  /// Runs `orvCompound "g" PATH FLAGS`, which must work; gives its result as JSON.
  std::string run(const std::string& path, const std::string& flags) {
    return host.run(line(path, flags));
  }

  /// Runs it as a line that must fail with `StatusFailure`; gives its messages.
  hosttest::Texts refusal(const std::string& path, const std::string& flags) {
    return refusalOf(line(path, flags));
  }

  static std::string line(const std::string& path, const std::string& flags) {
    return "orvCompound \"g\" \"" + path + "\" " + flags;
  }

  void sweep(const std::string& path, const std::string& flags) { sweepLine(line(path, flags)); }
};

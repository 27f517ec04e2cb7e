#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "commands/compound/orvCompoundCmd.h"
#include "platform/ORV_1_0/PortList.h"
#include "plugin/pluginMessages.h"
#include "standalone/graph/edits/FaultPoints.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/graph/storage/GraphText.h"
#include "standalone/host/engine/HostAccess.h"
#include "tests/support/GraphHost.h"

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

/// A graph "g" with the shipped runtimes. A message that a test does not take fails it.
class CompoundTest : public testing::Test {
 protected:
  CompoundTest() : graph(host.graph("g")) {
    registerMessages();
    addCommand("orvCompound", orvCompoundCmd::creator);
    addCommand("openCompound", OpenCompoundCmd::creator);
    host.session().undoQueue().clear();
  }

  void addCommand(const char* name, KFnPlugin::Creator creator) {
    host.session().registry().add({name, creator, orvCompoundCmd::createSyntax(), nullptr, {}});
  }

  /// Runs `orvCompound "g" PATH FLAGS`, which must work; gives its result as JSON.
  std::string run(const std::string& path, const std::string& flags) {
    return host.run(line(path, flags));
  }

  /// Runs it as a line that must fail with `StatusFailure`; gives its messages.
  hosttest::Texts refusal(const std::string& path, const std::string& flags) {
    EXPECT_EQ(host.status(line(path, flags)), StatusFailure) << flags;
    return host.takeMessages();
  }

  static std::string line(const std::string& path, const std::string& flags) {
    return "orvCompound \"g\" \"" + path + "\" " + flags;
  }

  void undo() { host.run("undo"); }
  void redo() { host.run("redo"); }

  /// The whole graph as text.
  std::string stored() const {
    return orvlib::writeGraph(static_cast<const orvlib::ContainerObject&>(graph));
  }

  /// Runs the line, then undo, redo and undo: each gives the stored form that was there before.
  void sweep(const std::string& path, const std::string& flags) {
    const std::string before = stored();
    run(path, flags);
    const std::string after = stored();
    EXPECT_NE(before, after) << flags;
    undo();
    EXPECT_EQ(stored(), before) << "undo of " << flags;
    redo();
    EXPECT_EQ(stored(), after) << "redo of " << flags;
    undo();
    EXPECT_EQ(stored(), before) << "second undo of " << flags;
  }

  hosttest::GraphHost host;
  ORV_v1::Container& graph;
};

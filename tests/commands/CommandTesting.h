#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "commands/clipboard/orvCopyCmd.h"
#include "commands/clipboard/orvPasteCmd.h"
#include "commands/clipboard/orvWatchPointCmd.h"
#include "commands/compound/orvCompoundCmd.h"
#include "commands/graph/orvConnectCmd.h"
#include "commands/graph/orvNodeCmd.h"
#include "commands/graph/orvPortCmd.h"
#include "platform/ORV_1_0/PortList.h"
#include "plugin/pluginMessages.h"
#include "standalone/graph/edits/FaultPoints.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/graph/storage/GraphText.h"
#include "standalone/host/engine/HostAccess.h"
#include "tests/support/GraphHost.h"

/// A graph "g" with the shipped runtimes, and the commands on graphs. A message that a test does
/// not take fails it.
class CommandTest : public testing::Test {
 protected:
  CommandTest() : graph(host.graph("g")) {
    registerMessages();
    addCommand("orvCompound", orvCompoundCmd::creator, orvCompoundCmd::createSyntax());
    addCommand("orvConnect", orvConnectCmd::creator, orvConnectCmd::createSyntax());
    addCommand("orvCopy", orvCopyCmd::creator, orvCopyCmd::createSyntax());
    addCommand("orvNode", orvNodeCmd::creator, orvNodeCmd::createSyntax());
    addCommand("orvPaste", orvPasteCmd::creator, orvPasteCmd::createSyntax());
    addCommand("orvPort", orvPortCmd::creator, orvPortCmd::createSyntax());
    addCommand("orvWatchPoint", orvWatchPointCmd::creator, orvWatchPointCmd::createSyntax());
    host.session().undoQueue().clear();
  }

  void addCommand(const char* name, KFnPlugin::Creator creator, const KSyntax& syntax) {
    host.session().registry().add({name, creator, syntax, nullptr, {}});
  }

  void undo() { host.run("undo"); }
  void redo() { host.run("redo"); }

  /// Runs a line that must fail with that status; gives its messages.
  hosttest::Texts refusalOf(const std::string& line, KStatusCode status = StatusFailure) {
    EXPECT_EQ(host.status(line), status) << line;
    return host.takeMessages();
  }

  /// The whole graph as text.
  std::string stored() const {
    return orvlib::writeGraph(static_cast<const orvlib::ContainerObject&>(graph));
  }

  /// Runs the line, then undo, redo and undo: each gives the stored form that was there before.
  void sweepLine(const std::string& line) {
    const std::string before = stored();
    host.run(line);
    const std::string after = stored();
    EXPECT_NE(before, after) << line;
    undo();
    EXPECT_EQ(stored(), before) << "undo of " << line;
    redo();
    EXPECT_EQ(stored(), after) << "redo of " << line;
    undo();
    EXPECT_EQ(stored(), before) << "second undo of " << line;
  }

  hosttest::GraphHost host;
  ORV_v1::Container& graph;
};

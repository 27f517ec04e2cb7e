#pragma once

#include <string>

#include "tests/commands/graph/NodeTesting.h"

/// What reading a line left in the command, also when the line was refused.
struct ReadNode {
  std::string container, path, port, key;
  hosttest::Texts connectedTo;
  hosttest::Texts flags;         ///< the booleans that are set
  hosttest::Texts stateChanges;  ///< "key:old>new", the key as a number
  bool undoable = false;
  bool executed = false;  ///< whether `doIt` went on to `redoIt`
};

/// The command, which reads its line and carries nothing out.
class ReadNodeCmd : public orvNodeCmd {
 public:
  static KPxCommand* creator() { return new ReadNodeCmd; }

  KStatus doIt(const KArgList& args) override {
    const KStatus status = orvNodeCmd::doIt(args);
    noteTexts();
    noteFlags();
    noteStateChanges();
    last = std::move(read);
    return status;
  }
  KStatus redoIt() override {
    read.executed = true;
    return StatusSuccess;
  }
  KStatus undoIt() override { return StatusSuccess; }

  static inline ReadNode last;

 private:
  void noteTexts() {
    read.container = containerName.asUTF8();
    read.path = nodePath.asUTF8();
    read.port = portName.asUTF8();
    read.key = metaDataName.asUTF8();
    read.connectedTo = connectedToPorts;
    read.undoable = isUndoable();
  }

  void noteFlags() {
    const std::pair<bool, const char*> all[] = {
        {queryTypeName, "queryTypeName"},
        {filterConnected, "filterConnected"},
        {connectedValue, "connectedValue"},
        {listConnectedNodes, "listConnectedNodes"},
        {listPorts, "listPorts"},
        {queryPortDefaultValues, "queryPortDefaultValues"},
        {queryPortDataType, "queryPortDataType"},
        {queryPortMetaDataValue, "queryPortMetaDataValue"},
        {listPortChildren, "listPortChildren"},
        {hasNodeEdits, "hasNodeEdits"},
    };
    for (const auto& [set, name] : all) {
      if (set) read.flags.emplace_back(name);
    }
  }

  void noteStateChanges() {
    for (const StateFlagChange& change : stateFlagChanges) {
      read.stateChanges.push_back(std::to_string(static_cast<unsigned char>(change.flagKey)) + ":" +
                                  std::to_string(change.oldState) + ">" +
                                  std::to_string(change.newState));
    }
  }

  ReadNode read;
};

/// A graph "g" with the node "a", which has the ports "a", "b", "own" and "result", and lines that
/// are read and not carried out.
class NodeReadingTest : public NodeTest {
 protected:
  NodeReadingTest() {
    addCommand("readNode", ReadNodeCmd::creator);
    build("/", "-an core::math::add -rn add a");
    run("/a", "-cip own float");
    host.session().undoQueue().clear();
  }

  /// Reads `"g" PATH FLAGS`, which must be accepted.
  const ReadNode& read(const std::string& flags, const std::string& path = "/a") {
    ReadNodeCmd::last = {};
    host.run(readLine(flags, path));
    EXPECT_TRUE(ReadNodeCmd::last.executed) << flags;
    return ReadNodeCmd::last;
  }

  /// Reads a line that must be refused with `StatusFailure`; the messages wait to be taken.
  const ReadNode& readRefused(const std::string& flags, const std::string& path = "/a") {
    ReadNodeCmd::last = {};
    EXPECT_EQ(host.status(readLine(flags, path)), StatusFailure) << flags;
    EXPECT_FALSE(ReadNodeCmd::last.executed) << flags;
    return ReadNodeCmd::last;
  }

  static std::string readLine(const std::string& flags, const std::string& path) {
    return "readNode g \"" + path + "\" " + flags;
  }
};

#pragma once

#include <string>

#include "tests/commands/compound/CompoundTesting.h"

/// What reading a line left in the command, also when the line was refused.
struct ReadCompound {
  using Texts = hosttest::Texts;

  std::string container, path;
  unsigned edit = 0, query = 0, listNodes = 0, listPorts = 0;
  std::string newCompound;
  Texts moved, movedAnnotations, exploded, reset;
  Texts renames;  ///< "from>to"
  std::string savedName, publish2, publish3, publishGraph2, publishGraph3, publishGraph4;
  bool publishFlag = false, isReferenced = false, listConnected = false, listPortConnected = false;
  std::string listType, listConnectedTo, canReset;
  std::string port, portKey, annotation, annotationKey;
  std::string statePort1, statePort2, stateType;
  bool undoable = false;
  bool executed = false;  ///< whether `doIt` went on to `redoIt`
};

/// The command, which reads its line and carries nothing out.
class ReadCompoundCmd : public orvCompoundCmd {
 public:
  static KPxCommand* creator() { return new ReadCompoundCmd; }

  KStatus doIt(const KArgList& args) override {
    const KStatus status = orvCompoundCmd::doIt(args);
    noteWords();
    noteLists();
    noteTexts();
    noteQueries();
    return status;
  }
  KStatus redoIt() override {
    read.executed = true;
    return StatusSuccess;
  }
  KStatus undoIt() override { return StatusSuccess; }

  static inline ReadCompound last;

 private:
  void noteWords() {
    read.edit = editFlags.getFlags();
    read.query = queryFlags.getFlags();
    read.listNodes = listNodesFlags.getFlags();
    read.listPorts = listPortsFlags.getFlags();
    read.undoable = isUndoable();
    read.publishFlag = publishFlag;
    read.isReferenced = isReferencedValue;
    read.listConnected = listConnectedValue;
    read.listPortConnected = listPortConnectedValue;
  }

  void noteLists() {
    read.moved = HostAccess::texts(nodesToMove);
    read.movedAnnotations = HostAccess::texts(annotationsToMove);
    read.exploded = HostAccess::texts(compoundsToExplode);
    read.reset = HostAccess::texts(resetToFactoryNodes);
    for (const NodeRename& rename : renames) read.renames.push_back(rename.from + ">" + rename.to);
  }

  void noteTexts() {
    read.container = containerName.asUTF8();
    read.path = compoundPath.asUTF8();
    read.newCompound = newCompoundName.asUTF8();
    read.savedName = saveOrPublishName.asUTF8();
    read.publish2 = publishArgument2.asUTF8();
    read.publish3 = publishArgument3.asUTF8();
    read.publishGraph2 = publishGraphArgument2.asUTF8();
    read.publishGraph3 = publishGraphArgument3.asUTF8();
    read.publishGraph4 = publishGraphArgument4.asUTF8();
    read.statePort1 = statePortFirstName.asUTF8();
    read.statePort2 = statePortSecondName.asUTF8();
    read.stateType = statePortType.asUTF8();
  }

  void noteQueries() {
    read.listType = listNodeType.asUTF8();
    read.listConnectedTo = listConnectedTo.asUTF8();
    read.canReset = canResetNodeName.asUTF8();
    read.port = queriedPortName.asUTF8();
    read.portKey = queriedPortMetaName.asUTF8();
    read.annotation = queriedAnnotationName.asUTF8();
    read.annotationKey = queriedAnnotationMetaName.asUTF8();
    last = std::move(read);
  }

  ReadCompound read;
};

/// A graph "g" with the inputs "p" and "q", and lines that are read and not carried out.
class CompoundReadingTest : public CompoundTest {
 protected:
  CompoundReadingTest() {
    addCommand("readCompound", ReadCompoundCmd::creator);
    run("/", "-cip p float -cip q float");
    host.session().undoQueue().clear();
  }

  /// Reads `"g" PATH FLAGS`, which must be accepted.
  const ReadCompound& read(const std::string& flags, const std::string& path = "/") {
    ReadCompoundCmd::last = {};
    host.run(readLine(flags, path));
    EXPECT_TRUE(ReadCompoundCmd::last.executed) << flags;
    return ReadCompoundCmd::last;
  }

  /// Reads a line that must be refused with `StatusFailure`; the messages wait to be taken.
  const ReadCompound& readRefused(const std::string& flags, const std::string& path = "/") {
    ReadCompoundCmd::last = {};
    EXPECT_EQ(host.status(readLine(flags, path)), StatusFailure) << flags;
    EXPECT_FALSE(ReadCompoundCmd::last.executed) << flags;
    return ReadCompoundCmd::last;
  }

  static std::string readLine(const std::string& flags, const std::string& path) {
    return "readCompound g \"" + path + "\" " + flags;
  }
};

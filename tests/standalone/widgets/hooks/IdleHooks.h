#pragma once

#include <vector>

#include "platform/ORV_1_0/Compound.h"
#include "platform/orvUI_1_0/AppServicesHook.h"
#include "platform/orvUI_1_0/CommandHook.h"

/// Makes no edit.
class IdleCommandHook : public orvUI_v1::CommandHook {
 public:
  using Text = const QString&;
  using Hints = const ORV_v1::NewPortHints&;
  using Selection = const orvUI_v1::EditSelection&;

  NodeHandle addNode(const CompoundHandle&, Text, Text) override { return {}; }
  NodeHandle addIONode(const CompoundHandle&, ORV_v1::NodeFlags, Text) override { return {}; }
  bool connectNodes(const ORV_v1::NodeList&) override { return false; }
  void renameNode(const NodeHandle&, Text) override {}
  void removeNode(const NodeHandle&) override {}
  bool createNodePort(const NodeHandle&, bool, Hints, PortHandle&) override { return false; }
  void setMetaData(int, const NodeHandle&, Text, Text) override {}
  void addMetaData(int, const NodeHandle&, Text, Text) override {}
  void removeMetaData(int, const NodeHandle&, Text, Text) override {}
  void clearMetaData(int, const NodeHandle&, Text) override {}
  void setMetaDataFromString(int, const NodeHandle&, const ORV_v1::PropertyList&) override {}
  bool setStateFlag(const NodeHandle&, char, bool) override { return false; }
  bool createCompoundPort(const CompoundHandle&, bool, Hints, PortHandle&) override {
    return false;
  }
  void renamePort(const PortHandle&, Text) override {}
  void deletePort(const PortHandle&) override {}
  void hidePort(const PortHandle&, bool) override {}
  void setPortDataType(int, const PortHandle&, Text) override {}
  void movePort(const PortHandle&, unsigned int) override {}
  void movePortToIONode(const PortHandle&, Text) override {}
  bool publish(const CompoundHandle&, const char*, const char*, const char*, bool) override {
    return false;
  }
  bool publishGraph(const CompoundHandle&, const char*, const char*, const char*,
                    const char*) override {
    return false;
  }
  void setIsReferenced(const CompoundHandle&, bool) override {}
  void resetToFactory(const CompoundHandle&) override {}
  void createCompound(const char*, Selection, CompoundHandle&) override {}
  void explodeCompounds(const CompoundHandle&, ORV_v1::NodeList*&) override {}
  void editAnnotation(unsigned int, const CompoundHandle&, const char*, const char*,
                      const char*) override {}
  bool clearPortFlag(const PortHandle&, unsigned int) override { return false; }
  bool connectPorts(const PortHandle&, const PortHandle&, bool) override { return false; }
  bool disconnectPorts(const PortHandle&, const PortHandle&) override { return false; }
  bool setPortFlag(const PortHandle&, unsigned int) override { return false; }
  void setPortMetaDataValue(int, const PortHandle&, Text, Text) override {}
  void setPortDefaultValues(const PortHandle&, const QList<QString>&, bool) override {}
  void resetPortDefaultValues(const PortHandle&) override {}
  bool editWatchPoint(unsigned int, const PortHandle&, Text, Text) override { return false; }
  bool cutSelection(Selection) override { return false; }
  bool copySelection(Selection) override { return false; }
  bool pasteClipboard(const orvUI_v1::PasteRequest&) override { return false; }
  void openChangeBracket(ORV_v1::Container*) override {}
  void closeChangeBracket(ORV_v1::Container*) override {}
};

/// Does nothing, and notes when preferences shall be stored or loaded.
class IdleServicesHook : public orvUI_v1::AppServicesHook {
 public:
  void undo() override {}
  void redo() override {}
  void openUndoChunk(const QString&) override {}
  void closeUndoChunk() override {}
  void abandonUndoChunk() override {}
  void setUndoSuspended(bool) override {}
  bool isUndoing() override { return false; }
  bool isRedoing() override { return false; }
  void syncUserPrefs(int direction) override { syncs.push_back(direction); }
  void showParameterEditor(int) override {}

  std::vector<int> syncs;
};

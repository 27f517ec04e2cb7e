#pragma once

#include "platform/orvUI_1_0/AppServicesHook.h"
#include "platform/orvUI_1_0/CommandHook.h"

/// Turns what a user does in an editor into lines of the host's command language, so that the host
/// keeps, undoes and journals it as if a script had done it. It holds nothing. It is installed from
/// the moment it is made and checks no argument: what a line is about decides the command that
/// runs.
class orvVeskCommandHook : public orvUI_v1::CommandHook, public orvUI_v1::AppServicesHook {
 public:
  orvVeskCommandHook();
  ~orvVeskCommandHook() override;

  NodeHandle addNode(const CompoundHandle& compound, const QString& typeName,
                     const QString& connectTo) override;
  NodeHandle addIONode(const CompoundHandle& compound, ORV_v1::NodeFlags kind,
                       const QString& connectTo) override;
  bool connectNodes(const ORV_v1::NodeList& nodes) override;
  void renameNode(const NodeHandle& node, const QString& newName) override;
  void removeNode(const NodeHandle& node) override;
  bool createNodePort(const NodeHandle& node, bool output, const ORV_v1::NewPortHints& hints,
                      PortHandle& port) override;
  void setMetaData(int targetKind, const NodeHandle& node, const QString& key,
                   const QString& value) override;
  void addMetaData(int targetKind, const NodeHandle& node, const QString& key,
                   const QString& value) override;
  void removeMetaData(int targetKind, const NodeHandle& node, const QString& key,
                      const QString& value) override;
  void clearMetaData(int targetKind, const NodeHandle& node, const QString& key) override;
  void setMetaDataFromString(int targetKind, const NodeHandle& node,
                             const ORV_v1::PropertyList& metadata) override;
  bool setStateFlag(const NodeHandle& node, char flag, bool value) override;
  bool createCompoundPort(const CompoundHandle& compound, bool output,
                          const ORV_v1::NewPortHints& hints, PortHandle& port) override;
  void renamePort(const PortHandle& port, const QString& newName) override;
  void deletePort(const PortHandle& port) override;
  void hidePort(const PortHandle& port, bool hidden) override;
  void setPortDataType(int targetKind, const PortHandle& port, const QString& type) override;
  void movePort(const PortHandle& port, unsigned int index) override;
  void movePortToIONode(const PortHandle& port, const QString& ioNode) override;
  bool publish(const CompoundHandle& compound, const char* name, const char* library,
               const char* description, bool replace) override;
  bool publishGraph(const CompoundHandle& compound, const char* name, const char* library,
                    const char* description, const char* file) override;
  void setIsReferenced(const CompoundHandle& compound, bool referenced) override;
  void resetToFactory(const CompoundHandle& compound) override;
  void createCompound(const char* name, const orvUI_v1::EditSelection& selection,
                      CompoundHandle& compound) override;
  void explodeCompounds(const CompoundHandle& parent, ORV_v1::NodeList*& compounds) override;
  void editAnnotation(unsigned int operation, const CompoundHandle& compound, const char* name,
                      const char* second, const char* third) override;
  bool clearPortFlag(const PortHandle& port, unsigned int flag) override;
  bool connectPorts(const PortHandle& source, const PortHandle& destination,
                    bool copyMetaData) override;
  bool disconnectPorts(const PortHandle& source, const PortHandle& destination) override;
  bool setPortFlag(const PortHandle& port, unsigned int flag) override;
  void setPortMetaDataValue(int targetKind, const PortHandle& port, const QString& key,
                            const QString& value) override;
  void setPortDefaultValues(const PortHandle& port, const QList<QString>& values,
                            bool direct) override;
  void resetPortDefaultValues(const PortHandle& port) override;
  bool editWatchPoint(unsigned int operation, const PortHandle& port, const QString& key,
                      const QString& value) override;
  bool cutSelection(const orvUI_v1::EditSelection& selection) override;
  bool copySelection(const orvUI_v1::EditSelection& selection) override;
  bool pasteClipboard(const orvUI_v1::PasteRequest& request) override;
  void openChangeBracket(ORV_v1::Container* container) override;
  void closeChangeBracket(ORV_v1::Container* container) override;

  void undo() override;
  void redo() override;
  void openUndoChunk(const QString& name) override;
  void closeUndoChunk() override;
  void abandonUndoChunk() override;
  void setUndoSuspended(bool suspended) override;
  bool isUndoing() override;
  bool isRedoing() override;
  void syncUserPrefs(int direction) override;
  void showParameterEditor(int mode) override;
};

#pragma once

#include <QList>
#include <QString>

#include "platform/ORV_1_0/GraphEnums.h"
#include "platform/ORV_1_0/NewPortHints.h"
#include "platform/ORV_1_0/Node.h"
#include "platform/ORV_1_0/NodeList.h"
#include "platform/ORV_1_0/Port.h"
#include "platform/ORV_1_0/PropertyList.h"
#include "platform/orvUI_1_0/EditSelection.h"
#include "platform/orvUI_1_0/OrvUiApi.h"
#include "platform/orvUI_1_0/PasteRequest.h"

namespace ORV_v1 {
class Runtime;
}

namespace orvUI_v1 {

/// The edits that a user makes in an editor. An editor changes no graph by itself: it calls the
/// hook that is installed, which makes the edit in whatever way the program wants. The order of the
/// operations is part of the interface.
///
/// Handles passed in are of objects in a graph, and not null unless an operation says so. A bool
/// answer tells whether the edit was made; an operation that gives nothing leaves the editor to see
/// by the graph what came of it. Names, types and paths are those of the graph library, and so is
/// their answer to what does not fit.
class ORVUI_EXPORT CommandHook {
 public:
  using CompoundHandle = ORV_v1::AddRefWrapper<ORV_v1::Compound>;
  using NodeHandle = ORV_v1::AddRefWrapper<ORV_v1::Node>;
  using PortHandle = ORV_v1::AddRefWrapper<ORV_v1::Port>;

  /// The values of a target kind: whether metadata or a port belongs to a node or to a compound.
  enum TargetKind { kTargetNode = 0, kTargetCompound = 1 };

  enum AnnotationEdit : unsigned {
    kAddBackdrop = 0,
    kAddStickyNote = 1,
    kRenameAnnotation = 2,
    kRemoveAnnotation = 3,
    kSetAnnotationMetaDataValue = 4,
  };

  enum WatchPointEdit : unsigned {
    kCreateWatchPoint = 0,
    kRemoveWatchPoint = 1,
    kSetWatchPointMetaData = 2,
  };

  CommandHook(const CommandHook&) = delete;
  CommandHook& operator=(const CommandHook&) = delete;

  /// Wherever it is installed it is so no longer.
  virtual ~CommandHook();

  /// `connectTo` names a port that the new node is connected to; empty for none. The new node, or a
  /// null handle when none was made.
  virtual NodeHandle addNode(const CompoundHandle& compound, const QString& typeName,
                             const QString& connectTo) = 0;
  virtual NodeHandle addIONode(const CompoundHandle& compound, ORV_v1::NodeFlags kind,
                               const QString& connectTo) = 0;

  /// Connects each node to the next.
  virtual bool connectNodes(const ORV_v1::NodeList& nodes) = 0;

  virtual void renameNode(const NodeHandle& node, const QString& newName) = 0;
  virtual void removeNode(const NodeHandle& node) = 0;

  /// `port` is null, or a fan-in port that shall get a new member. Afterwards it is the new port;
  /// null, and the answer false, when none was made.
  virtual bool createNodePort(const NodeHandle& node, bool output,
                              const ORV_v1::NewPortHints& hints, PortHandle& port) = 0;

  /// `targetKind` is a `TargetKind`; the node is that of the compound when one is meant.
  virtual void setMetaData(int targetKind, const NodeHandle& node, const QString& key,
                           const QString& value) = 0;
  virtual void addMetaData(int targetKind, const NodeHandle& node, const QString& key,
                           const QString& value) = 0;
  virtual void removeMetaData(int targetKind, const NodeHandle& node, const QString& key,
                              const QString& value) = 0;
  virtual void clearMetaData(int targetKind, const NodeHandle& node, const QString& key) = 0;
  virtual void setMetaDataFromString(int targetKind, const NodeHandle& node,
                                     const ORV_v1::PropertyList& metadata) = 0;

  /// `flag` is the letter of the state flag.
  virtual bool setStateFlag(const NodeHandle& node, char flag, bool value) = 0;

  /// `port` is only given back: the inner face of the new port, or null with the answer false.
  virtual bool createCompoundPort(const CompoundHandle& compound, bool output,
                                  const ORV_v1::NewPortHints& hints, PortHandle& port) = 0;

  virtual void renamePort(const PortHandle& port, const QString& newName) = 0;
  virtual void deletePort(const PortHandle& port) = 0;
  virtual void hidePort(const PortHandle& port, bool hidden) = 0;
  virtual void setPortDataType(int targetKind, const PortHandle& port, const QString& type) = 0;
  virtual void movePort(const PortHandle& port, unsigned int index) = 0;

  /// The port is an inner face.
  virtual void movePortToIONode(const PortHandle& port, const QString& ioNode) = 0;

  /// The texts are those of `Compound::publish` and `Compound::publishGraph`; null counts as empty.
  virtual bool publish(const CompoundHandle& compound, const char* name, const char* library,
                       const char* description, bool replace) = 0;
  virtual bool publishGraph(const CompoundHandle& compound, const char* name, const char* library,
                            const char* description, const char* file) = 0;

  virtual void setIsReferenced(const CompoundHandle& compound, bool referenced) = 0;
  virtual void resetToFactory(const CompoundHandle& compound) = 0;

  /// Makes a compound and moves the selection into it. `compound` stays as it is when none was
  /// made.
  virtual void createCompound(const char* name, const EditSelection& selection,
                              CompoundHandle& compound) = 0;

  /// `compounds` are nodes of the level `parent`; the list stays the caller's.
  virtual void explodeCompounds(const CompoundHandle& parent, ORV_v1::NodeList*& compounds) = 0;

  /// `operation` is an `AnnotationEdit`. The texts are the annotation's name, then, as far as the
  /// operation takes them, its new name, or a key and a value. Null counts as empty.
  virtual void editAnnotation(unsigned int operation, const CompoundHandle& compound,
                              const char* name, const char* second, const char* third) = 0;

  virtual bool clearPortFlag(const PortHandle& port, unsigned int flag) = 0;

  /// `copyMetaData` gives the destination the metadata of the source.
  virtual bool connectPorts(const PortHandle& source, const PortHandle& destination,
                            bool copyMetaData) = 0;
  virtual bool disconnectPorts(const PortHandle& source, const PortHandle& destination) = 0;

  virtual bool setPortFlag(const PortHandle& port, unsigned int flag) = 0;

  virtual void setPortMetaDataValue(int targetKind, const PortHandle& port, const QString& key,
                                    const QString& value) = 0;

  /// `values` has one text a component. `direct` is for a value on its way: nothing is kept to undo
  /// it by, and no text at all gives the port its default back, unless it is an array.
  virtual void setPortDefaultValues(const PortHandle& port, const QList<QString>& values,
                                    bool direct) = 0;
  virtual void resetPortDefaultValues(const PortHandle& port) = 0;

  /// `operation` is a `WatchPointEdit`; key and value are for metadata.
  virtual bool editWatchPoint(unsigned int operation, const PortHandle& port, const QString& key,
                              const QString& value) = 0;

  virtual bool cutSelection(const EditSelection& selection) = 0;
  virtual bool copySelection(const EditSelection& selection) = 0;
  virtual bool pasteClipboard(const PasteRequest& request) = 0;

  virtual void openChangeBracket(ORV_v1::Container* container) = 0;
  virtual void closeChangeBracket(ORV_v1::Container* container) = 0;

 protected:
  CommandHook();
};

/// Installs the hook that editors of the runtime's graphs call; null stands for all runtimes that
/// have no hook of their own. A null hook takes back what was installed. The hook stays the
/// caller's; it may go while it is installed.
ORVUI_EXPORT void setCommandHook(CommandHook* hook, ORV_v1::Runtime* runtime);

}  // namespace orvUI_v1

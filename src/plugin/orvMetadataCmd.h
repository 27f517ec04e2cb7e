#pragma once

#include "platform/ORV_1_0/Metadata.h"
#include "platform/ORV_1_0/MetadataCommand.h"
#include "platform/ORV_1_0/Node.h"
#include "platform/ORV_1_0/Port.h"
#include "plugin/orvBaseCmd.h"

/// The metadata flags that the commands on compounds, nodes and watch points share. A command has
/// it as its first base, ahead of `KPxCommand`, and
/// - calls `addMetadataFlags` for its syntax,
/// - calls one of the parse operations once, when it has found its object,
/// - calls `redoMetadata` and, after its edits, `queryMetadataResult` in its `redoIt`, and
///   `undoMetadata` in its `undoIt`,
/// - counts `metadataChanged` in its `isUndoable`.
class orvMetadataCmd : public orvBaseCmd {
 public:
  virtual ~orvMetadataCmd();

  static void addMetadataFlags(KSyntax& syntax);

 protected:
  orvMetadataCmd();

  // Read the metadata flags and record what they ask for, for that object. The status is
  // `StatusFailure` and nothing is read for a null handle; otherwise see `parseMetadataFlags`.
  void parseCompoundMetadata(KStatus& status, const KArgDatabase& db,
                             const ORV_v1::AddRefWrapper<ORV_v1::Compound>& compound);
  void parseNodeMetadata(KStatus& status, const KArgDatabase& db,
                         const ORV_v1::AddRefWrapper<ORV_v1::Node>& node);

  /// The watch point goes by the path of its port, and is there or not when the line is read: edits
  /// for a port without one are recorded, but fail in `redoMetadata`. So a line that creates the
  /// watch point and sets its metadata fails.
  void parseWatchPointMetadata(KStatus& status, const KArgDatabase& db,
                               const ORV_v1::AddRefWrapper<ORV_v1::Port>& port);

  /// Reads the flags in a fixed order and stops at the first that is refused: the user is told, and
  /// the status is `StatusFailure`.
  void parseMetadataFlags(KStatus& status, const KArgDatabase& db);

  /// Sets the command's result to what the flags ask for; nothing when they ask for nothing, and
  /// for null.
  void queryMetadataResult(const ORV_v1::Metadata* metadata) const;

  /// False when the recorded edits could not be made. True when there are none.
  bool redoMetadata();
  void undoMetadata();

  /// An edit was recorded: the command has something to do and to undo.
  bool metadataChanged = false;
  ORV_v1::MetadataCommand metadataCommand;
  bool queryAllMetadata = false;
  bool queryMetadataAsString = false;
  KString queryMetadataName;
  KString metadataSourceText;

 private:
  // The steps of `parseMetadataFlags`. Each reads its flag's arguments; false when it refuses them.
  bool parseQueryAll(const KArgDatabase& db, const char* flag);
  bool parseQuery(const KArgDatabase& db, const char* flag);
  bool parseSet(const KArgDatabase& db, const char* flag);
  bool parseAdd(const KArgDatabase& db, const char* flag);
  bool parseRemove(const KArgDatabase& db, const char* flag);
  bool parseClear(const KArgDatabase& db, const char* flag);
  bool parseFromString(const KArgDatabase& db, const char* flag);
  bool parseQueryAsString(const KArgDatabase& db, const char* flag);
};

#pragma once

#include "platform/ORV_1_0/OrvApi.h"
#include "platform/ORV_1_0/PropertyList.h"
#include "platform/ORV_1_0/StringArray.h"

namespace ORV_v1 {

class Container;

/// Edits the metadata of a compound, a node or a watch point.
/// Recording changes nothing: `redo` carries out what is recorded, in that order, all of it or
/// nothing. With nothing recorded it has nothing to do and is true. False, and nothing changed,
/// when something recorded cannot be done, when the object has left the graph, and for a second
/// `redo` in a row. `undo` takes back what was done, also on an object that has left the graph.
class ORV_EXPORT MetadataCommand {
 public:
  MetadataCommand();
  MetadataCommand(const MetadataCommand&) = delete;
  MetadataCommand& operator=(const MetadataCommand&) = delete;
  ~MetadataCommand();

  /// Binds the command to an object by its full path. False, and nothing bound, when there is none.
  bool setParentCompound(Container* container, const char* path);
  bool setParentNode(Container* container, const char* path);
  bool setParentWatchPoint(Container* container, const char* path);

  /// Each records one edit; false, and nothing recorded, for an empty or null key. Removing what is
  /// not there and clearing a key that is not there are done by doing nothing.
  bool setMetadata(const char* key, const StringArray& values);
  bool addMetadata(const char* key, const char* value);
  bool removeMetadata(const char* key, const char* value);
  bool clearMetadata(const char* key);

  /// Replaces the whole set.
  bool setFromPropertyList(const PropertyList& properties);

  /// The first `redo`.
  bool doit();
  void undo();
  bool redo();

 private:
  struct Rep;
  Rep* rep_;
};

}  // namespace ORV_v1

#pragma once

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/OrvApi.h"
#include "platform/ORV_1_0/Port.h"

namespace ORV_v1 {

/// Edits the watch points of ports.
/// Recording changes nothing: `redo` carries out what is recorded, in that order, all of it or
/// nothing. With nothing recorded it has nothing to do and is true. False, and nothing changed,
/// when something recorded cannot be done, and for a second `redo` or `undo` in a row.
class ORV_EXPORT WatchPointCommand {
 public:
  WatchPointCommand();
  WatchPointCommand(const WatchPointCommand&) = delete;
  WatchPointCommand& operator=(const WatchPointCommand&) = delete;
  ~WatchPointCommand();

  /// False, and nothing recorded, for a null port, a second watch point on a port, none to remove
  /// or to change, and an unknown parameter or a value that it does not take. A watch point that is
  /// created by what is recorded already counts as there.
  bool createWatchPoint(const AddRefWrapper<Port>& port);
  bool removeWatchPoint(const AddRefWrapper<Port>& port);
  bool enableWatchPoint(const AddRefWrapper<Port>& port, bool enabled);
  bool setWatchPointParameter(const AddRefWrapper<Port>& port, const char* name, const char* value);

  void undo();
  bool redo();

 private:
  struct Rep;
  Rep* rep_;
};

}  // namespace ORV_v1

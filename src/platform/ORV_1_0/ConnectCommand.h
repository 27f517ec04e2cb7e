#pragma once

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/OrvApi.h"
#include "platform/ORV_1_0/Port.h"

namespace ORV_v1 {

class Container;

/// Makes or breaks one connection. `connect` and `disconnect` act at once, all of it or nothing;
/// `undo` and `redo` then go back and forth, false and nothing changed out of turn.
class ORV_EXPORT ConnectCommand {
 public:
  ConnectCommand();
  ConnectCommand(const ConnectCommand&) = delete;
  ConnectCommand& operator=(const ConnectCommand&) = delete;
  ~ConnectCommand();

  /// The ports may be given in either order. What is connected to the input is displaced, unless it
  /// is a fan-in port, which grows a member. `copyMetaData` sets each metadata key of the
  /// output on the input, whose other keys stay. False, and nothing changed, for ports of another
  /// graph, ports that do not face one another, types that do not convert, a connection that is
  /// there, and one that would close a cycle.
  bool connect(Container* container, const AddRefWrapper<Port>& source,
               const AddRefWrapper<Port>& destination, bool copyMetaData);

  /// A fan-in port stands for its member that is connected to the output. False, and nothing
  /// changed, when the ports are not connected.
  bool disconnect(Container* container, const AddRefWrapper<Port>& source,
                  const AddRefWrapper<Port>& destination);

  bool undo();
  bool redo();

 private:
  struct Rep;
  Rep* rep_;
};

}  // namespace ORV_v1

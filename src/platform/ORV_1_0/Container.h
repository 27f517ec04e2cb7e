#pragma once

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/Annotation.h"
#include "platform/ORV_1_0/ChangeBracket.h"
#include "platform/ORV_1_0/ChangeBracketClient.h"
#include "platform/ORV_1_0/Namable.h"
#include "platform/ORV_1_0/Node.h"
#include "platform/ORV_1_0/Port.h"
#include "platform/ORV_1_0/PortTypeLookup.h"

namespace ORV_v1 {

/// One graph. It belongs to an object of the host and is known by that object's UUID. Paths begin
/// at the top compound, "/"; a lookup that finds nothing, or gets null, gives a null handle.
class ORV_EXPORT Container : public ChangeBracketClient {
 public:
  /// Which of the ports of one path are looked for.
  enum ESearchIOType : std::uint32_t { kSearchInput = 0, kSearchOutput = 1, kSearchEither = 2 };

  /// Which face of a compound's port is looked for. A port of any other node has one face, which
  /// both modes find.
  enum ESearchMode : std::uint32_t { kSearchInner = 0, kSearchOuter = 1 };

  /// The graph of the host's object with that UUID; null when there is none. It belongs to the
  /// library and is valid as long as the host's object.
  static Container* getFromUUID(const char* uuid);

  AddRefWrapper<Node> findNodeFromPath(const char* path);

  /// The search type is compared with the direction of the face found. For any other value of the
  /// two nothing is found.
  AddRefWrapper<Port> findPortFromPath(const char* path, ESearchIOType ioType, ESearchMode mode);

  AddRefWrapper<Annotation> findAnnotationFromPath(const char* path);

  /// The two faces that a connection from `sourcePath` to `destinationPath` joins: one that gives
  /// values and one that takes them, seen from one level. False, and the handles null, when the
  /// paths are of no such ports.
  bool findPortsForConnection(const char* sourcePath, const char* destinationPath,
                              AddRefWrapper<Port>* source, AddRefWrapper<Port>* destination);

  /// Brackets nest by count. While any is open, listeners are told nothing and nothing is evaluated
  /// anew; the end of the outermost tells of all changes at once. Null stands for the container.
  /// False, and nothing changed, for a client of another graph, and for closing what is not open.
  bool openChangeBracket(ChangeBracketClient* client) const;
  bool closeChangeBracket(ChangeBracketClient* client) const;

  /// The node of the top compound. Every graph here has one; null is only what a caller allows for.
  virtual AddRefWrapper<Node> getTopNode() = 0;

  /// The name of the host's object.
  virtual Namable getContainerName() = 0;

  /// A bracket as a value: closed when it goes. For a client of another graph it opens none.
  virtual ChangeBracket makeChangeBracket(ChangeBracketClient* client) = 0;

  /// Valid while the container lives.
  virtual PortTypeLookup& portTypeLookup() = 0;

 protected:
  Container();
  ~Container() override;
};

}  // namespace ORV_v1

#pragma once

#include <string>
#include <vector>

#include "standalone/graph/edits/Transaction.h"

namespace orvlib {

/// A connection at the outside of a compound that had to go.
struct LostWire {
  PortRef source;
  PortRef target;

  /// The fan-in port that `target` was a member of; null for any other port.
  PortRef fanIn;
  Mutator::WireIndices indices;

  /// "from '/a.result' to '/blur.size'"
  std::string text;
};
using LostWires = std::vector<LostWire>;

/// What the inside of a compound consists of, taken out of it: the ports as they are to be seen
/// from inside, metadata, nodes and annotations, and what joins them. It holds nothing of the
/// compound itself.
struct TakenLevel {
  struct Port {
    PortRef port;  ///< the outer face that it was taken from
    std::string name;
    PortDirection direction;
    TypeRef type;
    std::uint32_t flags;
    Properties metadata;
    std::optional<Value> value;
  };

  /// One end of a connection: a port of a node inside, or a face of the compound by its path.
  struct End {
    PortRef port;
    std::string face;
  };
  struct Wire {
    End source;
    End target;
    Mutator::WireIndices indices;
  };
  struct Shown {
    std::string port;
    NodeRef ioNode;
    unsigned int index;
  };
  struct StatePair {
    std::string input;
    std::string output;
  };

  std::vector<Port> ports;
  Properties metadata;

  /// Holds the nodes for now.
  NodeRef carrier;
  std::vector<AnnotationRef> annotations;

  // In the order in which they were taken away: to be put back in reverse.
  std::vector<Wire> wires;
  std::vector<Shown> shown;
  std::vector<StatePair> states;
};

// Edits added to a transaction, which the caller rolls back when one of these says false. A level
// must live at least as long as a transaction that may still be rolled back.

/// Empties a compound. Its ports stay, with their connections outside.
bool takeLevel(Transaction& edits, CompoundObject& compound, TakenLevel& level);

/// Fills an emptied compound. Ports that it has already, by name and direction, stay the objects
/// that they are, and keep value and connections as far as the type allows. Connections that go are
/// added to `lost`.
bool putLevel(Transaction& edits, CompoundObject& compound, const TakenLevel& level,
              LostWires& lost);

/// Connects again what is free to be connected.
void restoreWires(Transaction& edits, const LostWires& lost);

}  // namespace orvlib

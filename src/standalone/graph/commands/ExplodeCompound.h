#pragma once

#include <absl/container/flat_hash_set.h>

#include <vector>

#include "standalone/graph/edits/Transaction.h"

namespace orvlib {

/// Puts the content of a compound in its place, as edits added to a transaction.
class ExplodeCompound {
 public:
  ExplodeCompound(Transaction& edits, NodeObject& compound);

  /// The nodes that come out are appended. False when something does not fit.
  bool run(std::vector<NodeRef>& created);

 private:
  /// Where a value goes that one of the compound's ports takes.
  struct Reached {
    PortObject* target;
    std::string below;  ///< the path of the child of the source that it comes from
  };

  /// A connection from outside the compound's ports to one of them, and where it leads.
  struct Feed {
    PortRef source;
    unsigned int place;  ///< among the source's connections
    std::vector<Reached> reached;
  };

  /// The value of a port that nothing is connected to.
  struct Rest {
    PortObject* port;
    std::vector<Reached> reached;
  };

  bool isFace(const PortObject& port) const { return port.node() == &node_; }
  std::vector<PortObject*> takingFaces() const;
  bool collect();
  bool collectFeeds(PortObject& taking);
  bool reach(PortObject& taking, const std::string& below, std::vector<Reached>& reached) const;
  bool reachFrom(PortObject& giving, const std::string& rest, const std::string& below,
                 bool isMember, std::vector<Reached>& reached) const;
  bool reachChildren(PortObject& giving, const std::string& below,
                     std::vector<Reached>& reached) const;

  bool runBreak();
  bool runBreakFace(PortObject& face);
  bool runLetGo();
  bool runMove(CompoundObject& level, std::vector<NodeRef>& created);
  bool runPassValues();
  bool runPassValue(const Rest& rest, const Reached& reached);
  bool runJoin();
  bool runJoin(const Feed& feed, const Reached& reached, unsigned int place);

  Transaction& edits_;
  NodeObject& node_;
  CompoundObject& inside_;
  std::vector<Feed> feeds_;
  std::vector<Rest> rests_;
  absl::flat_hash_set<const PortObject*> joined_;
};

}  // namespace orvlib

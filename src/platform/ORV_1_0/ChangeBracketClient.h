#pragma once

#include "platform/ORV_1_0/OrvApi.h"

namespace ORV_v1 {

class Container;
class ReferenceCounted;

/// What a change bracket can be opened on: a container, a compound or a node.
class ORV_EXPORT ChangeBracketClient {
 public:
  ChangeBracketClient(const ChangeBracketClient&) = delete;
  ChangeBracketClient& operator=(const ChangeBracketClient&) = delete;

  /// Whether a bracket is open on this client. A container answers for all that it holds.
  bool activeChangeBracket() const;

 protected:
  ChangeBracketClient();
  virtual ~ChangeBracketClient();

 private:
  friend struct GraphAccess;

  /// The graph that the client is in; null when it is in none.
  virtual Container* clientContainer() const = 0;

  /// What keeps the client alive; null for a container.
  virtual ReferenceCounted* clientObject();
  virtual unsigned int openBrackets() const;
  unsigned int ownBrackets_ = 0;
};

}  // namespace ORV_v1

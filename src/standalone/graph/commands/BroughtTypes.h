#pragma once

#include <string_view>
#include <vector>

#include "standalone/graph/storage/GraphText.h"

namespace orvlib {

/// The types that what is pasted brings along: those that stand in for types which the graph's
/// runtime does not know. The graph has them as long as it has what was pasted.
class BroughtTypes {
 public:
  /// Reads a selection. The graph's types are the same afterwards, whether it could be read or not.
  bool read(std::string_view text, GraphCore& core, Selection& selection);

  /// Adds the types, but for names that stand for another by now.
  void enter(GraphCore& core) const;

  /// Takes out what `enter` added.
  void leave(GraphCore& core) const;

 private:
  bool has(const TypeRef& type) const;

  std::vector<TypeRef> types_;
};

}  // namespace orvlib

#pragma once

#include "standalone/graph/evaluation/Evaluator.h"
#include "standalone/graph/storage/GraphText.h"

namespace orvlib {

/// A graph as a program holds it: made empty, evaluated, saved, loaded, and found by its UUID.
class ORV_EXPORT Graph {
 public:
  /// Of the runtime of that name; without one, of `defaultRuntime`.
  explicit Graph(const std::string& runtime = defaultRuntime());

  /// The runtime "standard", or else the first that is loaded.
  static std::string defaultRuntime();

  ContainerObject& container() { return container_; }
  const ContainerObject& container() const { return container_; }

  /// The first to be told of a change, so that who is told later finds what is watched recorded.
  Evaluator& evaluator() { return evaluator_; }

  /// The same graph gives the same text, byte for byte.
  std::string save() const { return writeGraph(container_); }

  /// Reads what `save` gave, of whatever runtime. On an error the graph is as it was.
  std::optional<StorageError> load(std::string_view text) { return readGraph(text, container_); }

 private:
  ContainerObject container_;
  Evaluator evaluator_{container_};
};

}  // namespace orvlib

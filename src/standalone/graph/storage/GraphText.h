#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "standalone/graph/model/ContainerObject.h"

namespace orvlib {

/// Where and why a text cannot be read; the line counts from 1.
struct StorageError {
  std::size_t line;
  std::string reason;
};

// docs/graph-format.md describes the texts.

/// A whole graph as text. The same graph gives the same text, byte for byte.
ORV_EXPORT std::string writeGraph(const ContainerObject& graph);

/// Replaces the graph by what `writeGraph` wrote. On an error the graph is as it was.
ORV_EXPORT std::optional<StorageError> readGraph(std::string_view text, ContainerObject& graph);

/// What a compound is: its ports, metadata, nodes, annotations and connections, but nothing of its
/// node. This is what is published.
ORV_EXPORT std::string writeContent(const CompoundObject& compound);

/// Fills a compound that is still empty and has no ports. After an error it is of no use.
ORV_EXPORT std::optional<StorageError> readContent(std::string_view text, CompoundObject& compound);

/// Some nodes and annotations of one level, with the connections among them and, by full path,
/// those that come in from other ports of that level.
ORV_EXPORT std::string writeSelection(const CompoundObject& level,
                                      std::span<NodeObject* const> nodes,
                                      std::span<AnnotationObject* const> annotations);

/// A connection into a selection from outside it.
struct IncomingWire {
  PortRef target;

  /// The full path that the source had; empty when that is in another graph.
  std::string source;
};

/// What a selection holds, in a compound that is in no graph: move the nodes out of it.
struct Selection {
  NodeRef carrier;
  std::vector<IncomingWire> incoming;
};
ORV_EXPORT std::optional<StorageError> readSelection(std::string_view text, GraphCore& core,
                                                     Selection& selection);

}  // namespace orvlib

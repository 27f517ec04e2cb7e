#pragma once

#include "standalone/graph/Graph.h"

namespace fuzz {

/// Requires that what the objects of a graph say of each other fits together, that its text reads
/// back as the same text, and that marks of what must be computed anew lead on.
void checkGraph(orvlib::ContainerObject& graph);

/// Asks for what every port of every level gives.
void evaluateAll(orvlib::Graph& graph);

}  // namespace fuzz

#pragma once

#include "standalone/graph/library/Fields.h"
#include "standalone/graph/library/NodeDescription.h"

namespace orvlib {

/// Reads the keys "inputs" and "outputs" of the node `nodeName`, whose ports have types out of
/// `types`: inputs first. Throws `DefinitionError`.
std::vector<PortDescription> readPorts(const Fields& fields, const std::string& nodeName,
                                       const TypeTable& types);

}  // namespace orvlib

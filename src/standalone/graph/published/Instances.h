#pragma once

#include "standalone/graph/model/CompoundObject.h"
#include "standalone/graph/model/GraphCore.h"

namespace orvlib {

/// A compound node that is a reference to the published compound. Null when its content cannot be
/// read, which is reported to the current registry, or when it would hold itself.
NodeRef makeInstance(GraphCore& core, ORV_v1::NodeDefinition& definition, std::string name);

/// The definition of the published compound that the compound comes from. A null handle when it
/// comes from none, or that is not offered now.
NodeObject::DefinitionRef offeredOrigin(const CompoundObject& compound);

/// Whether the compound holds what a new instance would, apart from the values that its ports have.
/// True when there can be no instance.
bool holdsPublishedContent(const CompoundObject& compound);

/// Whether a level below it, references included, refers to the published compound of that name.
bool refersTo(const CompoundObject& compound, std::string_view name);

}  // namespace orvlib

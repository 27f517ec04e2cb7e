#pragma once

#include "standalone/graph/model/CompoundObject.h"
#include "standalone/graph/model/GraphCore.h"

namespace orvlib {

/// A compound node that is a reference to the published compound. Null when its content cannot be
/// read, when it would hold itself, or when it is made inside of too many others, which is reported
/// to the current registry.
NodeRef makeInstance(GraphCore& core, ORV_v1::NodeDefinition& definition, std::string name);

/// Tells the current registry that there can be no instance of the published compound, and why.
void reportNoInstance(const GraphCore& core, const std::string& name, const std::string& reason);

/// The definition of the published compound that the compound comes from. A null handle when it
/// comes from none, or that is not offered now.
NodeObject::DefinitionRef offeredOrigin(const CompoundObject& compound);

/// Whether the compound holds what a new instance would, apart from the values that its ports have.
/// True when there can be no instance, or it may not hold that.
bool holdsPublishedContent(const CompoundObject& compound);

/// Whether the compound may be given the content of the other: with compounds no deeper than
/// commands put them, or than they are now.
bool mayHold(const CompoundObject& compound, const CompoundObject& content);

/// Whether a level below it, references included, refers to the published compound of that name.
bool refersTo(const CompoundObject& compound, std::string_view name);

}  // namespace orvlib

#include <gtest/gtest.h>

#include <type_traits>

#include "platform/ORV_1_0/ConnectCommand.h"
#include "platform/ORV_1_0/ConnectNodesCommand.h"
#include "platform/ORV_1_0/CopyCommand.h"
#include "platform/ORV_1_0/CreateCompoundCommand.h"
#include "platform/ORV_1_0/ExplodeCompoundCommand.h"
#include "platform/ORV_1_0/MetadataCommand.h"
#include "platform/ORV_1_0/ModifyCompoundAnnotationCommand.h"
#include "platform/ORV_1_0/ModifyCompoundPortCommand.h"
#include "platform/ORV_1_0/ModifyNodePortCommand.h"
#include "platform/ORV_1_0/NodeCommand.h"
#include "platform/ORV_1_0/NodeList.h"
#include "platform/ORV_1_0/PasteCommand.h"
#include "platform/ORV_1_0/WatchPointCommand.h"

// What modules call, with the arguments and results that they call it with.

namespace {

using namespace ORV_v1;

/// Compiles only when the operation exists in that form.
template <class Pointer>
constexpr bool has(Pointer) {
  return true;
}

/// A command is held by value, made without arguments, and not copied.
template <class Command>
constexpr bool isHeld =
    std::is_default_constructible_v<Command>&& std::is_destructible_v<Command> &&
    !std::is_copy_constructible_v<Command> && !std::is_copy_assignable_v<Command>;

using Text = const char*;
using PortHandle = const AddRefWrapper<Port>&;
using NodeHandle = const AddRefWrapper<Node>&;
using CompoundHandle = const AddRefWrapper<Compound>&;

using C = ConnectCommand;
static_assert(isHeld<C>);
static_assert(has<bool (C::*)(Container*, PortHandle, PortHandle, bool)>(&C::connect));
static_assert(has<bool (C::*)(Container*, PortHandle, PortHandle)>(&C::disconnect));
static_assert(has<bool (C::*)()>(&C::undo));
static_assert(has<bool (C::*)()>(&C::redo));

using CN = ConnectNodesCommand;
static_assert(isHeld<CN>);
static_assert(has<bool (CN::*)(const NodeList&)>(&CN::connect));
static_assert(has<bool (CN::*)()>(&CN::doit));
static_assert(has<bool (CN::*)()>(&CN::undo));
static_assert(has<bool (CN::*)()>(&CN::redo));

using CP = CopyPasteCommandBase;
static_assert(has<void (*)(bool)>(&CP::setUseLocalClipboard));

using Y = CopyCommand;
static_assert(isHeld<Y> && std::is_convertible_v<Y*, CP*>);
static_assert(has<bool (Y::*)(Container*, Text)>(&Y::setParentCompound));
static_assert(has<bool (Y::*)(Text)>(&Y::addSourceNode));
static_assert(has<bool (Y::*)(Text)>(&Y::addSourceAnnotation));
static_assert(has<bool (Y::*)()>(&Y::doit));

using P = PasteCommand;
static_assert(isHeld<P> && std::is_convertible_v<P*, CP*>);
static_assert(has<bool (P::*)(Container*, Text)>(&P::setParentCompound));
static_assert(has<void (P::*)(bool)>(&P::duplicateSourceInputConnections));
static_assert(has<bool (P::*)()>(&P::doit));
static_assert(has<bool (P::*)()>(&P::undo));
static_assert(has<bool (P::*)()>(&P::redo));

using K = CreateCompoundCommand;
static_assert(isHeld<K>);
static_assert(has<bool (K::*)(Container*, Text)>(&K::setParentCompound));
static_assert(has<void (K::*)(Text)>(&K::setNewCompoundName));
static_assert(has<bool (K::*)(Text)>(&K::addNodeToMove));
static_assert(has<bool (K::*)(Text)>(&K::addAnnotationToMove));
static_assert(has<String (K::*)() const>(&K::getCreatedCompoundPath));
static_assert(has<bool (K::*)()>(&K::doit));
static_assert(has<bool (K::*)()>(&K::undo));
static_assert(has<bool (K::*)()>(&K::redo));

using E = ExplodeCompoundCommand;
static_assert(isHeld<E>);
static_assert(has<bool (E::*)(Container*, Text)>(&E::setParentCompound));
static_assert(has<bool (E::*)(Text)>(&E::addCompoundToExplode));
static_assert(has<unsigned int (E::*)() const>(&E::getCreatedNodeCount));
static_assert(has<Text (E::*)(unsigned int) const>(&E::getCreatedNodeName));
static_assert(has<bool (E::*)()>(&E::doit));
static_assert(has<bool (E::*)()>(&E::undo));
static_assert(has<bool (E::*)()>(&E::redo));

using M = MetadataCommand;
static_assert(isHeld<M>);
static_assert(has<bool (M::*)(Container*, Text)>(&M::setParentCompound));
static_assert(has<bool (M::*)(Container*, Text)>(&M::setParentNode));
static_assert(has<bool (M::*)(Container*, Text)>(&M::setParentWatchPoint));
static_assert(has<bool (M::*)(Text, const StringArray&)>(&M::setMetadata));
static_assert(has<bool (M::*)(Text, Text)>(&M::addMetadata));
static_assert(has<bool (M::*)(Text, Text)>(&M::removeMetadata));
static_assert(has<bool (M::*)(Text)>(&M::clearMetadata));
static_assert(has<bool (M::*)(const PropertyList&)>(&M::setFromPropertyList));
static_assert(has<bool (M::*)()>(&M::doit));
static_assert(has<void (M::*)()>(&M::undo));
static_assert(has<bool (M::*)()>(&M::redo));

using A = ModifyCompoundAnnotationCommand;
static_assert(isHeld<A>);
static_assert(has<bool (A::*)(Container*, Text)>(&A::setParentCompound));
static_assert(has<bool (A::*)(Text)>(&A::createBackdrop));
static_assert(has<bool (A::*)()>(&A::createStickyNote));
static_assert(has<bool (A::*)(Text)>(&A::deleteAnnotation));
static_assert(has<bool (A::*)(Text, Text)>(&A::renameAnnotation));
static_assert(has<bool (A::*)(Text, Text, Text)>(&A::setAnnotationMetaDataValue));
static_assert(has<bool (A::*)()>(&A::doit));
static_assert(has<void (A::*)()>(&A::undo));
static_assert(has<bool (A::*)()>(&A::redo));

using MC = ModifyCompoundPortCommand;
static_assert(isHeld<MC> && std::is_constructible_v<MC, PortHandle>);
static_assert(has<bool (MC::*)(Container*, Text)>(&MC::setParentCompound));
static_assert(has<bool (MC::*)(PortIOType, Text, Text, const PortProperties&)>(&MC::createPort));
static_assert(has<bool (MC::*)(Text, Text)>(&MC::renamePort));
static_assert(has<bool (MC::*)(Text, unsigned int)>(&MC::movePort));
static_assert(has<bool (MC::*)(Text, Text)>(&MC::movePort));
static_assert(has<bool (MC::*)(Text, bool)>(&MC::hidePort));
static_assert(has<bool (MC::*)(Text, Text)>(&MC::setPortDataType));
static_assert(has<bool (MC::*)(Text, Text, Text)>(&MC::setPortMetaDataValue));
static_assert(has<bool (MC::*)(Text)>(&MC::deletePort));
static_assert(has<bool (MC::*)(Text, const StringArray&, bool)>(&MC::setPortValues));
static_assert(has<bool (MC::*)(Text)>(&MC::resetPortValues));
static_assert(has<bool (MC::*)()>(&MC::doit));
static_assert(has<void (MC::*)()>(&MC::undo));
static_assert(has<bool (MC::*)()>(&MC::redo));

using MN = ModifyNodePortCommand;
using IO = Container::ESearchIOType;
using Mode = Container::ESearchMode;
static_assert(isHeld<MN>);
static_assert(
    has<bool (MN::*)(NodeHandle, PortIOType, Text, Text, const PortProperties&)>(&MN::createPort));
static_assert(has<bool (MN::*)(NodeHandle, Text)>(&MN::deletePort));
static_assert(has<bool (MN::*)(NodeHandle, Text, const StringArray&, bool)>(&MN::setPortValues));
static_assert(has<bool (MN::*)(NodeHandle, Text)>(&MN::resetPortValues));
static_assert(has<bool (MN::*)(NodeHandle, Text, Text)>(&MN::setPortType));
static_assert(has<bool (MN::*)(NodeHandle, Text, Text, Text)>(&MN::setPortMetaDataValue));
static_assert(
    has<bool (MN::*)(PortHandle, IO, Mode, PortFlags, QueryPortFlags)>(&MN::handlePortFlags));
static_assert(has<bool (MN::*)()>(&MN::doit));
static_assert(has<void (MN::*)()>(&MN::undo));
static_assert(has<bool (MN::*)()>(&MN::redo));

using N = NodeCommand;
static_assert(isHeld<N>);
static_assert(has<bool (N::*)(CompoundHandle, Text, Text)>(&N::createNode));
static_assert(has<bool (N::*)(CompoundHandle, NodeFlags, Text)>(&N::createIONode));
static_assert(has<bool (N::*)(CompoundHandle, Text)>(&N::removeNode));
static_assert(has<StringArray (N::*)() const>(&N::getCreatedNodeNames));
static_assert(has<bool (N::*)()>(&N::doit));
static_assert(has<bool (N::*)()>(&N::undo));
static_assert(has<bool (N::*)()>(&N::redo));

using W = WatchPointCommand;
static_assert(isHeld<W>);
static_assert(has<bool (W::*)(PortHandle)>(&W::createWatchPoint));
static_assert(has<bool (W::*)(PortHandle)>(&W::removeWatchPoint));
static_assert(has<bool (W::*)(PortHandle, bool)>(&W::enableWatchPoint));
static_assert(has<bool (W::*)(PortHandle, Text, Text)>(&W::setWatchPointParameter));
static_assert(has<void (W::*)()>(&W::undo));
static_assert(has<bool (W::*)()>(&W::redo));

}  // namespace

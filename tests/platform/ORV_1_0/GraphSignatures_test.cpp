#include <gtest/gtest.h>

#include <type_traits>

#include "platform/ORV_1_0/AnnotationList.h"
#include "platform/ORV_1_0/Compound.h"
#include "platform/ORV_1_0/Container.h"
#include "platform/ORV_1_0/NodeList.h"
#include "platform/ORV_1_0/PortList.h"
#include "platform/ORV_1_0/WatchPoint.h"

// What modules call, with the arguments and results that they call it with.

namespace {

using namespace ORV_v1;

/// Compiles only when the operation exists in that form.
template <class Pointer>
constexpr bool has(Pointer) {
  return true;
}

template <class T>
using Handle = AddRefWrapper<T>;
using Text = const char*;

using Counted = ReferenceCounted;
static_assert(has<void (Counted::*)()>(&Counted::addRef));
static_assert(has<void (Counted::*)()>(&Counted::release));
static_assert(std::has_virtual_destructor_v<Counted>);

using C = Container;
using Client = ChangeBracketClient;
static_assert(std::is_convertible_v<C*, Client*>);
static_assert(has<C* (*)(Text)>(&C::getFromUUID));
static_assert(has<Handle<Node> (C::*)(Text)>(&C::findNodeFromPath));
static_assert(
    has<Handle<Port> (C::*)(Text, C::ESearchIOType, C::ESearchMode)>(&C::findPortFromPath));
static_assert(has<Handle<Annotation> (C::*)(Text)>(&C::findAnnotationFromPath));
static_assert(
    has<bool (C::*)(Text, Text, Handle<Port>*, Handle<Port>*)>(&C::findPortsForConnection));
static_assert(has<bool (C::*)(Client*) const>(&C::openChangeBracket));
static_assert(has<bool (C::*)(Client*) const>(&C::closeChangeBracket));
static_assert(has<Handle<Node> (C::*)()>(&C::getTopNode));
static_assert(has<Namable (C::*)()>(&C::getContainerName));
static_assert(has<ChangeBracket (C::*)(Client*)>(&C::makeChangeBracket));
static_assert(has<PortTypeLookup& (C::*)()>(&C::portTypeLookup));
static_assert(has<bool (Client::*)() const>(&Client::activeChangeBracket));
static_assert(std::has_virtual_destructor_v<ChangeBracket>);
static_assert(!std::is_copy_constructible_v<ChangeBracket>);
using Lookup = PortTypeLookup;
static_assert(has<Handle<PortDataType> (Lookup::*)(Text) const>(&Lookup::findPortType));

using L = Compound;
static_assert(std::is_convertible_v<L*, Counted*> && std::is_convertible_v<L*, Client*>);
static_assert(std::is_convertible_v<L*, Metadata*> && std::is_convertible_v<L*, Namable*>);
static_assert(has<Handle<Node> (L::*)()>(&L::getAsNode));
static_assert(has<NodeList& (L::*)()>(&L::getChildNodes));
static_assert(has<PortList& (L::*)()>(&L::compoundInputs));
static_assert(has<PortList& (L::*)()>(&L::compoundOutputs));
static_assert(has<bool (L::*)()>(&L::isEditable));
static_assert(has<bool (L::*)()>(&L::canResetToFactory));
static_assert(has<void (L::*)()>(&L::resetToFactory));
static_assert(has<bool (L::*)(Text, String&)>(&L::save));
static_assert(has<bool (L::*)(Text, Text, Text, bool, String&)>(&L::publish));
static_assert(has<bool (L::*)(Text, Text, Text, Text, String&)>(&L::publishGraph));
static_assert(has<String (L::*)()>(&L::getSpecializedTypeName));
static_assert(has<bool (L::*)()>(&L::isReferenced));
static_assert(has<bool (L::*)(bool)>(&L::setIsReferenced));
static_assert(has<bool (L::*)()>(&L::isImported));
static_assert(has<bool (L::*)(Text, Text, const Handle<PortDataType>&)>(&L::addStatePorts));
static_assert(has<bool (L::*)(const Handle<Port>&)>(&L::removePort));
static_assert(has<AnnotationList& (L::*)()>(&L::getAnnotations));

using N = Node;
static_assert(std::is_convertible_v<N*, Counted*> && std::is_convertible_v<N*, Client*>);
static_assert(std::is_convertible_v<N*, Metadata*> && std::is_convertible_v<N*, Namable*>);
static_assert(has<C* (N::*)() const>(&N::getContainer));
static_assert(has<Handle<Compound> (N::*)()>(&N::getParentCompound));
static_assert(has<PortList& (N::*)()>(&N::inputs));
static_assert(has<PortList& (N::*)()>(&N::outputs));
static_assert(has<bool (N::*)()>(&N::isCompound));
static_assert(has<Handle<Compound> (N::*)()>(&N::asCompound));
static_assert(has<Namable (N::*)()>(&N::getFullPathName));
static_assert(has<String (N::*)()>(&N::getTypeName));
static_assert(has<NodeStateFlags& (N::*)()>(&N::getStateFlags));
static_assert(has<void (N::*)(unsigned int)>(&N::stateFlagChanged));
using Flags = NodeStateFlags;
static_assert(has<unsigned int (Flags::*)() const>(&Flags::size));
static_assert(has<const NodeStateFlag& (Flags::*)(unsigned int) const>(&Flags::operator[]));
static_assert(has<void (Flags::*)(unsigned int, const NodeStateFlag&)>(&Flags::update));

using P = Port;
static_assert(std::is_convertible_v<P*, Counted*> && std::is_convertible_v<P*, Namable*>);
static_assert(std::is_convertible_v<P*, Flaggable<PortFlags>*>);
static_assert(has<Handle<Node> (P::*)()>(&P::getParentNode));
static_assert(has<Handle<Compound> (P::*)()>(&P::getParentCompound));
static_assert(has<P* (P::*)() const>(&P::getParentPort));
static_assert(has<PortIOType (P::*)()>(&P::getPortIOType));
static_assert(has<Namable (P::*)()>(&P::getFullName));
static_assert(has<Namable (P::*)()>(&P::getFullPathName));
static_assert(has<Handle<PortDataType> (P::*)()>(&P::getDataType));
static_assert(has<Handle<PortList>& (P::*)()>(&P::children));
static_assert(has<PortList& (P::*)() const>(&P::connectedTo));
static_assert(has<bool (P::*)() const>(&P::isConnected));
static_assert(has<bool (P::*)() const>(&P::isFanIn));
static_assert(has<bool (P::*)() const>(&P::isMemberFanIn));
static_assert(has<bool (P::*)() const>(&P::isCompoundInternalPort));
static_assert(has<bool (P::*)(StringArray&) const>(&P::getPortDefaultValues));
static_assert(has<String (P::*)(Text)>(&P::getPortMetaDataValue));
static_assert(has<bool (P::*)(Handle<Port>, bool)>(&P::addConnection));
static_assert(has<const Handle<WatchPoint>& (P::*)() const>(&P::getWatchPoint));
static_assert(has<bool (*)(Text, StringArray&, const Handle<PortDataType>&)>(
    &P::unserializePortValuesString));

using A = Annotation;
static_assert(std::is_convertible_v<A*, Counted*> && std::is_convertible_v<A*, Namable*>);
static_assert(std::is_convertible_v<A*, Metadata*>);
static_assert(has<String (A::*)(Text)>(&A::getAnnotationMetaDataValue));
static_assert(has<bool (A::*)() const>(&A::isStickyNote));
static_assert(has<Handle<Compound> (A::*)()>(&A::getParentCompound));

using W = WatchPoint;
static_assert(std::is_convertible_v<W*, Counted*> && std::is_convertible_v<W*, Metadata*>);
static_assert(has<bool (W::*)()>(&W::isEnabled));
static_assert(has<bool (W::*)(StringArray&)>(&W::getParameterNames));
static_assert(has<bool (W::*)(Text, StringArray&)>(&W::getParameterValues));
static_assert(has<bool (W::*)(Text, String&)>(&W::getParameterDescription));
static_assert(has<bool (W::*)(Text, Text, String&)>(&W::getParameterValueDescription));
static_assert(has<bool (W::*)(Text, String&)>(&W::getParameterValue));
static_assert(has<bool (W::*)(Text, StringArray&)>(&W::getRecordedValues));

using M = Metadata;
static_assert(has<bool (M::*)(Text, StringArray&) const>(&M::getMetadataValues));
static_assert(has<void (M::*)(StringArray&) const>(&M::getMetadataKeys));
static_assert(has<PropertyList (M::*)() const>(&M::getMetadata));

using NL = NodeList;
static_assert(has<Handle<NL> (*)(Compound*)>(&NL::createNew));
static_assert(has<bool (NL::*)(Handle<Node>)>(&NL::add));
static_assert(has<unsigned int (NL::*)() const>(&NL::size));
static_assert(has<Handle<Node> (NL::*)(unsigned int) const>(&NL::operator[]));
static_assert(has<Handle<Node> (NL::*)(Text) const>(&NL::operator[]));
static_assert(has<ListIterator<NL> (NL::*)() const>(&NL::begin));
static_assert(has<ListIterator<NL> (NL::*)() const>(&NL::end));

using PL = PortList;
static_assert(has<unsigned int (PL::*)() const>(&PL::size));
static_assert(has<Handle<Port> (PL::*)(unsigned int) const>(&PL::operator[]));
static_assert(has<Handle<Port> (PL::*)(Text) const>(&PL::operator[]));
static_assert(has<unsigned int (PL::*)(Handle<Port>) const>(&PL::findPort));
static_assert(has<ListIterator<PL> (PL::*)() const>(&PL::begin));
static_assert(has<ListIterator<PL> (PL::*)() const>(&PL::end));

using AL = AnnotationList;
static_assert(has<Handle<AL> (*)()>(&AL::createNew));
static_assert(has<bool (AL::*)(Handle<Annotation>)>(&AL::add));
static_assert(has<unsigned int (AL::*)() const>(&AL::size));
static_assert(has<Handle<Annotation> (AL::*)(unsigned int) const>(&AL::operator[]));
static_assert(has<ListIterator<AL> (AL::*)() const>(&AL::begin));
static_assert(has<ListIterator<AL> (AL::*)() const>(&AL::end));

}  // namespace

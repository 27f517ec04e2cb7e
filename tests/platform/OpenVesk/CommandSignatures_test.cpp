#include <gtest/gtest.h>

#include <type_traits>

#include "platform/OpenVesk/KArgDatabase.h"
#include "platform/OpenVesk/KFnPlugin.h"

// What modules call, with the arguments and results that they call it with.

namespace {

/// Compiles only when the operation exists in that form.
template <class Pointer>
constexpr bool has(Pointer) {
  return true;
}

static_assert(std::is_abstract_v<KPxCommand> && std::has_virtual_destructor_v<KPxCommand>);
static_assert(has<KStatus (KPxCommand::*)(const KArgList&)>(&KPxCommand::doIt));
static_assert(has<KStatus (KPxCommand::*)()>(&KPxCommand::undoIt));
static_assert(has<KStatus (KPxCommand::*)()>(&KPxCommand::redoIt));
static_assert(has<bool (KPxCommand::*)() const>(&KPxCommand::isUndoable));
static_assert(has<bool (KPxCommand::*)() const>(&KPxCommand::hasSyntax));
static_assert(has<KSyntax (KPxCommand::*)() const>(&KPxCommand::syntax));
static_assert(has<void (*)()>(&KPxCommand::clearResult));
static_assert(has<void (*)(bool)>(&KPxCommand::setResult));
static_assert(has<void (*)(unsigned int)>(&KPxCommand::setResult));
static_assert(has<void (*)(const char*)>(&KPxCommand::setResult));
static_assert(has<void (*)(const KString&)>(&KPxCommand::setResult));
static_assert(has<void (*)(const KStringArray&)>(&KPxCommand::setResult));
static_assert(has<void (*)(const char*)>(&KPxCommand::appendToResult));
static_assert(has<void (*)(const KString&)>(&KPxCommand::appendToResult));
static_assert(has<void (*)(const KStringArray&)>(&KPxCommand::appendToResult));

using T = KSyntax::KArgType;
static_assert(std::is_default_constructible_v<KSyntax> && std::is_copy_constructible_v<KSyntax>);
static_assert(std::has_virtual_destructor_v<KSyntax>);
static_assert(
    has<KStatus (KSyntax::*)(const char*, const char*, T, T, T, T, T, T)>(&KSyntax::addFlag));
static_assert(has<KStatus (KSyntax::*)(T)>(&KSyntax::addArg));
static_assert(has<KStatus (KSyntax::*)(const char*)>(&KSyntax::makeFlagMultiUse));
static_assert(has<KStatus (KSyntax::*)(const char*, bool)>(&KSyntax::makeFlagQueryWithFullArgs));
static_assert(has<void (KSyntax::*)(bool)>(&KSyntax::enableQuery));
static_assert(has<void (KSyntax::*)(bool)>(&KSyntax::enableEdit));

using P = KArgParser;
static_assert(std::is_constructible_v<P, const KSyntax&, const KArgList&, KStatus*>);
static_assert(std::has_virtual_destructor_v<P>);
static_assert(has<bool (P::*)(const char*, KStatus*) const>(&P::isFlagSet));
static_assert(has<bool (P::*)(KStatus*) const>(&P::isQuery));
static_assert(has<bool (P::*)(KStatus*) const>(&P::isEdit));
static_assert(has<unsigned int (P::*)(const char*) const>(&P::numberOfFlagUses));
static_assert(
    has<KStatus (P::*)(const char*, unsigned int, KArgList&) const>(&P::getFlagArgumentList));
static_assert(
    has<KString (P::*)(const char*, unsigned int, KStatus*) const>(&P::flagArgumentString));
static_assert(has<int (P::*)(const char*, unsigned int, KStatus*) const>(&P::flagArgumentInt));

using D = KArgDatabase;
static_assert(std::is_base_of_v<KArgParser, D> && std::is_convertible_v<D*, KArgParser*>);
static_assert(std::is_constructible_v<D, const KSyntax&, const KArgList&, KStatus*>);
static_assert(has<KStatus (D::*)(const char*, unsigned, KString&) const>(&D::getFlagArgument));
static_assert(has<KStatus (D::*)(const char*, unsigned, bool&) const>(&D::getFlagArgument));
static_assert(has<KStatus (D::*)(const char*, unsigned, int&) const>(&D::getFlagArgument));
static_assert(has<KStatus (D::*)(const char*, unsigned, unsigned&) const>(&D::getFlagArgument));
static_assert(has<KStatus (D::*)(unsigned, KString&) const>(&D::getCommandArgument));
static_assert(has<KStatus (D::*)(unsigned, int&) const>(&D::getCommandArgument));

static_assert(std::is_default_constructible_v<KArgList>);
static_assert(has<unsigned int (KArgList::*)(KStatus*) const>(&KArgList::length));
static_assert(has<bool (KArgList::*)(unsigned int, KStatus*) const>(&KArgList::asBool));
static_assert(has<KString (KArgList::*)(unsigned int, KStatus*) const>(&KArgList::asString));

using F = KFnPlugin;
static_assert(
    std::is_constructible_v<F, KObject&, const char*, const char*, const char*, KStatus*>);
static_assert(std::has_virtual_destructor_v<F>);
static_assert(has<KString (F::*)(KStatus*) const>(&F::name));
static_assert(
    has<KStatus (F::*)(const KString&, KPxCommand* (*)(), KSyntax (*)())>(&F::registerCommand));
static_assert(has<KStatus (F::*)(const KString&)>(&F::deregisterCommand));

}  // namespace

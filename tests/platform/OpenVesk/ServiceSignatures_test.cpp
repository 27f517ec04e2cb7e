#include <gtest/gtest.h>

#include <cstdint>
#include <type_traits>

#include "platform/OpenVesk/KFnDependencyNode.h"
#include "platform/OpenVesk/KGlobal.h"
#include "platform/OpenVesk/KMessage.h"
#include "platform/OpenVesk/KSceneMessage.h"
#include "platform/OpenVesk/KStringResource.h"
#include "platform/OpenVeskUI/KQtUtil.h"

// What modules call, with the arguments and results that they call it with.

namespace {

/// Compiles only when the operation exists in that form.
template <class Pointer>
constexpr bool has(Pointer) {
  return true;
}

using G = KGlobal;
static_assert(has<KStatus (*)(const KString&, bool, bool)>(&G::executeCommand));
static_assert(has<KStatus (*)(const KString&, KCommandResult&, bool, bool)>(&G::executeCommand));
static_assert(has<KStatus (*)(const KString&, int&, bool, bool)>(&G::executeCommand));
static_assert(has<KStatus (*)(const KString&, bool)>(&G::executeCommandOnIdle));
static_assert(has<void (*)(const KString&)>(&G::displayError));
static_assert(has<void (*)(const KString&)>(&G::displayWarning));
static_assert(has<bool (*)()>(&G::isUndoing) && has<bool (*)()>(&G::isRedoing));
static_assert(has<KStatus (*)(const KString&, KSelectionList&)>(&G::getSelectionListByName));

using R = KCommandResult;
static_assert(std::is_constructible_v<R, KStatus*> && std::has_virtual_destructor_v<R>);
static_assert(has<R::Type (R::*)(KStatus*) const>(&R::resultType));
static_assert(has<KStatus (R::*)(int&) const>(&R::getResult));
static_assert(has<KStatus (R::*)(KString&) const>(&R::getResult));
static_assert(has<KStatus (R::*)(KStringArray&) const>(&R::getResult));

using S = KString;
static_assert(std::is_default_constructible_v<S> && std::is_copy_constructible_v<S>);
static_assert(std::is_convertible_v<const char*, S>);
static_assert(has<const char* (S::*)() const>(&S::asChar));
static_assert(has<const char* (S::*)() const>(&S::asUTF8));
static_assert(has<unsigned int (S::*)() const>(&S::length));
static_assert(has<unsigned int (S::*)() const>(&S::numChars));
static_assert(has<S& (S::*)(const char*)>(&S::operator=) &&
              has<S& (S::*)(const S&)>(&S::operator=));
static_assert(has<S& (S::*)(const char*)>(&S::operator+=));
static_assert(has<S& (S::*)(const S&)>(&S::operator+=));
static_assert(has<bool (S::*)(const char*) const>(&S::operator==));
static_assert(has<bool (S::*)(const char*) const>(&S::operator!=));
static_assert(has<KStatus (S::*)(const char*)>(&S::set));
static_assert(has<KStatus (S::*)(const char*)>(&S::setUTF8));
static_assert(has<S (S::*)(int, int) const>(&S::substring));
using A = const KString&;
static_assert(has<KStatus (S::*)(A, A, A, A, A, A, A, A, A, A, A)>(&S::format));
static_assert(std::is_same_v<decltype(S::argUnused), const KString>);

using V = KStringArray;
static_assert(has<KStatus (V::*)(const KString&)>(&V::append));
static_assert(has<unsigned int (V::*)() const>(&V::length));
static_assert(has<KStatus (V::*)(unsigned int)>(&V::setLength));
static_assert(has<KString& (V::*)(unsigned int)>(&V::operator[]));
static_assert(has<KString (V::*)(unsigned int) const>(&V::operator[]));
using Iterator = KArrayIteratorTemplate<KStringArray, KString>;
static_assert(has<Iterator (V::*)() const>(&V::begin) && has<Iterator (V::*)() const>(&V::end));

using I = KStringResourceId;
static_assert(std::is_default_constructible_v<I> && std::is_copy_constructible_v<I>);
static_assert(std::is_constructible_v<I, const char*, const char*, const KString&>);
static_assert(std::is_copy_assignable_v<I>);
static_assert(has<KStatus (*)(const I&)>(&KStringResource::registerString));
static_assert(has<KString (*)(const I&, KStatus&)>(&KStringResource::getString));

using L = KSelectionList;
static_assert(std::is_default_constructible_v<L> && std::has_virtual_destructor_v<L>);
static_assert(has<KStatus (L::*)(unsigned int, KObject&) const>(&L::getDependNode));
using N = KFnDependencyNode;
static_assert(std::is_constructible_v<N, KObject&, KStatus*> && std::has_virtual_destructor_v<N>);
static_assert(has<KUuid (N::*)(KStatus*) const>(&N::uuid));
static_assert(has<KString (KUuid::*)() const>(&KUuid::asString));
static_assert(std::is_default_constructible_v<KObject> && std::is_copy_constructible_v<KObject>);

using M = KSceneMessage;
static_assert(
    has<std::uint64_t (*)(M::Message, void (*)(void*), void*, KStatus*)>(&M::addCallback));
static_assert(has<KStatus (*)(std::uint64_t)>(&KMessage::removeCallback));

using Q = KQtUtil;
static_assert(has<QWidget* (*)()>(&Q::getCurrentParent));
static_assert(has<KString (*)(QWidget*, QWidget*, const KString&)>(&Q::addWidgetToVeskLayout));
static_assert(has<int (*)(int)>(&Q::dpiScale));

}  // namespace

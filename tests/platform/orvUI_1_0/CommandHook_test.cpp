#include "platform/orvUI_1_0/CommandHook.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "tests/support/VirtualTable.h"

// Editors call through this table, and a module fills it.

namespace {

using orvUI_v1::CommandHook;
using orvUI_v1::EditSelection;
using orvUI_v1::PasteRequest;

using Hook = CommandHook;
using Compound = const ORV_v1::AddRefWrapper<ORV_v1::Compound>&;
using Node = const ORV_v1::AddRefWrapper<ORV_v1::Node>&;
using NodeResult = ORV_v1::AddRefWrapper<ORV_v1::Node>;
using Port = const ORV_v1::AddRefWrapper<ORV_v1::Port>&;
using Hints = const ORV_v1::NewPortHints&;
using Text = const QString&;
using Narrow = const char*;
using Selection = const EditSelection&;

/// Compiles only when the operation exists in that form.
template <class Pointer>
constexpr bool has(Pointer) {
  return true;
}

static_assert(has<NodeResult (Hook::*)(Compound, Text, Text)>(&Hook::addNode));
static_assert(has<NodeResult (Hook::*)(Compound, ORV_v1::NodeFlags, Text)>(&Hook::addIONode));
static_assert(has<bool (Hook::*)(const ORV_v1::NodeList&)>(&Hook::connectNodes));
static_assert(has<void (Hook::*)(Node, Text)>(&Hook::renameNode));
static_assert(has<void (Hook::*)(Node)>(&Hook::removeNode));
static_assert(has<bool (Hook::*)(Node, bool, Hints, ORV_v1::AddRefWrapper<ORV_v1::Port>&)>(
    &Hook::createNodePort));
static_assert(has<void (Hook::*)(int, Node, Text, Text)>(&Hook::setMetaData));
static_assert(has<void (Hook::*)(int, Node, Text, Text)>(&Hook::addMetaData));
static_assert(has<void (Hook::*)(int, Node, Text, Text)>(&Hook::removeMetaData));
static_assert(has<void (Hook::*)(int, Node, Text)>(&Hook::clearMetaData));
static_assert(
    has<void (Hook::*)(int, Node, const ORV_v1::PropertyList&)>(&Hook::setMetaDataFromString));
static_assert(has<bool (Hook::*)(Node, char, bool)>(&Hook::setStateFlag));
static_assert(has<bool (Hook::*)(Compound, bool, Hints, ORV_v1::AddRefWrapper<ORV_v1::Port>&)>(
    &Hook::createCompoundPort));
static_assert(has<void (Hook::*)(Port, Text)>(&Hook::renamePort));
static_assert(has<void (Hook::*)(Port)>(&Hook::deletePort));
static_assert(has<void (Hook::*)(Port, bool)>(&Hook::hidePort));
static_assert(has<void (Hook::*)(int, Port, Text)>(&Hook::setPortDataType));
static_assert(has<void (Hook::*)(Port, unsigned int)>(&Hook::movePort));
static_assert(has<void (Hook::*)(Port, Text)>(&Hook::movePortToIONode));
static_assert(has<bool (Hook::*)(Compound, Narrow, Narrow, Narrow, bool)>(&Hook::publish));
static_assert(has<bool (Hook::*)(Compound, Narrow, Narrow, Narrow, Narrow)>(&Hook::publishGraph));
static_assert(has<void (Hook::*)(Compound, bool)>(&Hook::setIsReferenced));
static_assert(has<void (Hook::*)(Compound)>(&Hook::resetToFactory));
static_assert(has<void (Hook::*)(Narrow, Selection, ORV_v1::AddRefWrapper<ORV_v1::Compound>&)>(
    &Hook::createCompound));
static_assert(has<void (Hook::*)(Compound, ORV_v1::NodeList*&)>(&Hook::explodeCompounds));
static_assert(
    has<void (Hook::*)(unsigned int, Compound, Narrow, Narrow, Narrow)>(&Hook::editAnnotation));
static_assert(has<bool (Hook::*)(Port, unsigned int)>(&Hook::clearPortFlag));
static_assert(has<bool (Hook::*)(Port, Port, bool)>(&Hook::connectPorts));
static_assert(has<bool (Hook::*)(Port, Port)>(&Hook::disconnectPorts));
static_assert(has<bool (Hook::*)(Port, unsigned int)>(&Hook::setPortFlag));
static_assert(has<void (Hook::*)(int, Port, Text, Text)>(&Hook::setPortMetaDataValue));
static_assert(has<void (Hook::*)(Port, const QList<QString>&, bool)>(&Hook::setPortDefaultValues));
static_assert(has<void (Hook::*)(Port)>(&Hook::resetPortDefaultValues));
static_assert(has<bool (Hook::*)(unsigned int, Port, Text, Text)>(&Hook::editWatchPoint));
static_assert(has<bool (Hook::*)(Selection)>(&Hook::cutSelection));
static_assert(has<bool (Hook::*)(Selection)>(&Hook::copySelection));
static_assert(has<bool (Hook::*)(const PasteRequest&)>(&Hook::pasteClipboard));
static_assert(has<void (Hook::*)(ORV_v1::Container*)>(&Hook::openChangeBracket));
static_assert(has<void (Hook::*)(ORV_v1::Container*)>(&Hook::closeChangeBracket));
static_assert(has<void (*)(CommandHook*, ORV_v1::Runtime*)>(&orvUI_v1::setCommandHook));
static_assert(sizeof(CommandHook) == sizeof(void*));
static_assert(std::has_virtual_destructor_v<CommandHook>);

TEST(CommandHookLayout, TheOperationsFollowTheDestructorInTheirOrder) {
  EXPECT_EQ(slotOf(&Hook::addNode), 0);
  EXPECT_EQ(slotOf(&Hook::addIONode), 1);
  EXPECT_EQ(slotOf(&Hook::connectNodes), 2);
  EXPECT_EQ(slotOf(&Hook::renameNode), 3);
  EXPECT_EQ(slotOf(&Hook::removeNode), 4);
  EXPECT_EQ(slotOf(&Hook::createNodePort), 5);
  EXPECT_EQ(slotOf(&Hook::setMetaData), 6);
  EXPECT_EQ(slotOf(&Hook::addMetaData), 7);
  EXPECT_EQ(slotOf(&Hook::removeMetaData), 8);
  EXPECT_EQ(slotOf(&Hook::clearMetaData), 9);
  EXPECT_EQ(slotOf(&Hook::setMetaDataFromString), 10);
  EXPECT_EQ(slotOf(&Hook::setStateFlag), 11);
  EXPECT_EQ(slotOf(&Hook::createCompoundPort), 12);
  EXPECT_EQ(slotOf(&Hook::renamePort), 13);
  EXPECT_EQ(slotOf(&Hook::deletePort), 14);
  EXPECT_EQ(slotOf(&Hook::hidePort), 15);
  EXPECT_EQ(slotOf(&Hook::setPortDataType), 16);
  EXPECT_EQ(slotOf(&Hook::movePort), 17);
  EXPECT_EQ(slotOf(&Hook::movePortToIONode), 18);
  EXPECT_EQ(slotOf(&Hook::publish), 19);
  EXPECT_EQ(slotOf(&Hook::publishGraph), 20);
  EXPECT_EQ(slotOf(&Hook::setIsReferenced), 21);
  EXPECT_EQ(slotOf(&Hook::resetToFactory), 22);
  EXPECT_EQ(slotOf(&Hook::createCompound), 23);
  EXPECT_EQ(slotOf(&Hook::explodeCompounds), 24);
  EXPECT_EQ(slotOf(&Hook::editAnnotation), 25);
  EXPECT_EQ(slotOf(&Hook::clearPortFlag), 26);
  EXPECT_EQ(slotOf(&Hook::connectPorts), 27);
  EXPECT_EQ(slotOf(&Hook::disconnectPorts), 28);
  EXPECT_EQ(slotOf(&Hook::setPortFlag), 29);
  EXPECT_EQ(slotOf(&Hook::setPortMetaDataValue), 30);
  EXPECT_EQ(slotOf(&Hook::setPortDefaultValues), 31);
  EXPECT_EQ(slotOf(&Hook::resetPortDefaultValues), 32);
  EXPECT_EQ(slotOf(&Hook::editWatchPoint), 33);
  EXPECT_EQ(slotOf(&Hook::cutSelection), 34);
  EXPECT_EQ(slotOf(&Hook::copySelection), 35);
  EXPECT_EQ(slotOf(&Hook::pasteClipboard), 36);
  EXPECT_EQ(slotOf(&Hook::openChangeBracket), 37);
  EXPECT_EQ(slotOf(&Hook::closeChangeBracket), 38);
}

TEST(CommandHookLayout, KindsAndEditsHaveTheirNumbers) {
  EXPECT_EQ(Hook::kTargetNode, 0);
  EXPECT_EQ(Hook::kTargetCompound, 1);
  EXPECT_EQ(Hook::kAddBackdrop, 0u);
  EXPECT_EQ(Hook::kAddStickyNote, 1u);
  EXPECT_EQ(Hook::kRenameAnnotation, 2u);
  EXPECT_EQ(Hook::kRemoveAnnotation, 3u);
  EXPECT_EQ(Hook::kSetAnnotationMetaDataValue, 4u);
  EXPECT_EQ(Hook::kCreateWatchPoint, 0u);
  EXPECT_EQ(Hook::kRemoveWatchPoint, 1u);
  EXPECT_EQ(Hook::kSetWatchPointMetaData, 2u);
}

}  // namespace

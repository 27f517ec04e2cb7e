#include "platform/orvUI_1_0/AppServicesHook.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "tests/support/VirtualTable.h"

// Editors call through this table, and a module fills it.

namespace {

using orvUI_v1::AppServicesHook;

using Hook = AppServicesHook;

/// Compiles only when the operation exists in that form.
template <class Pointer>
constexpr bool has(Pointer) {
  return true;
}

static_assert(has<void (Hook::*)()>(&Hook::undo));
static_assert(has<void (Hook::*)()>(&Hook::redo));
static_assert(has<void (Hook::*)(const QString&)>(&Hook::openUndoChunk));
static_assert(has<void (Hook::*)()>(&Hook::closeUndoChunk));
static_assert(has<void (Hook::*)()>(&Hook::abandonUndoChunk));
static_assert(has<void (Hook::*)(bool)>(&Hook::setUndoSuspended));
static_assert(has<bool (Hook::*)()>(&Hook::isUndoing));
static_assert(has<bool (Hook::*)()>(&Hook::isRedoing));
static_assert(has<void (Hook::*)(int)>(&Hook::syncUserPrefs));
static_assert(has<void (Hook::*)(int)>(&Hook::showParameterEditor));
static_assert(has<void (*)(AppServicesHook*)>(&orvUI_v1::setAppServicesHook));
static_assert(sizeof(AppServicesHook) == sizeof(void*));
static_assert(std::has_virtual_destructor_v<AppServicesHook>);

TEST(AppServicesHookLayout, TheOperationsFollowTheDestructorInTheirOrder) {
  EXPECT_EQ(slotOf(&Hook::undo), 0);
  EXPECT_EQ(slotOf(&Hook::redo), 1);
  EXPECT_EQ(slotOf(&Hook::openUndoChunk), 2);
  EXPECT_EQ(slotOf(&Hook::closeUndoChunk), 3);
  EXPECT_EQ(slotOf(&Hook::abandonUndoChunk), 4);
  EXPECT_EQ(slotOf(&Hook::setUndoSuspended), 5);
  EXPECT_EQ(slotOf(&Hook::isUndoing), 6);
  EXPECT_EQ(slotOf(&Hook::isRedoing), 7);
  EXPECT_EQ(slotOf(&Hook::syncUserPrefs), 8);
  EXPECT_EQ(slotOf(&Hook::showParameterEditor), 9);
}

TEST(AppServicesHookLayout, LoadingIsOne) {
  EXPECT_EQ(Hook::kSavePrefs, 0);
  EXPECT_EQ(Hook::kLoadPrefs, 1);
}

}  // namespace

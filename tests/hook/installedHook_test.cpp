// The module's own hook: there from the load on, gone with the module.

#include <dlfcn.h>

#include "standalone/host/engine/HostAccess.h"
#include "tests/hook/HookTesting.h"

namespace {

using orvUI_v1::AppServicesHook;
using orvUI_v1::CommandHook;
using Registry = orvuilib::HookRegistry;
using EntryPoint = KStatus (*)(KObject);

/// The file that the code of the object comes from: where its table of operations is.
template <class Hook>
std::string fileOf(const Hook* hook) {
  Dl_info info{};
  const void* table = *reinterpret_cast<const void* const*>(hook);
  return dladdr(table, &info) ? info.dli_fname : "nowhere";
}

class InstalledHook : public testing::Test {
 protected:
  InstalledHook() {
    EXPECT_FALSE(Registry::commandHook());
    EXPECT_FALSE(Registry::appServicesHook());
  }

  bool load() { return bool(host.session().plugins().load(kModulePath)); }
  bool unload() { return bool(host.session().plugins().unload(kModuleName)); }

  hosttest::GraphHost host;
};

TEST_F(InstalledHook, IsThereOnceTheModuleIsMappedAheadOfItsEntryPoint) {
  void* module = dlopen(kModulePath, RTLD_NOW | RTLD_LOCAL);
  ASSERT_TRUE(module) << dlerror();
  EXPECT_TRUE(Registry::commandHook());
  EXPECT_TRUE(Registry::appServicesHook());
  dlclose(module);
  EXPECT_FALSE(Registry::commandHook());
  EXPECT_FALSE(Registry::appServicesHook());
}

TEST_F(InstalledHook, BothFacesAreTheModules) {
  ASSERT_TRUE(load());
  EXPECT_EQ(fileOf(Registry::commandHook()), kModulePath);
  EXPECT_EQ(fileOf(Registry::appServicesHook()), kModulePath);
  EXPECT_EQ(dynamic_cast<CommandHook*>(Registry::appServicesHook()), Registry::commandHook());
}

TEST_F(InstalledHook, TheEntryPointsLeaveItAlone) {
  void* module = dlopen(kModulePath, RTLD_NOW | RTLD_LOCAL);
  CommandHook* const edits = Registry::commandHook();
  AppServicesHook* const services = Registry::appServicesHook();
  ASSERT_TRUE(load());
  EXPECT_EQ(Registry::commandHook(), edits);
  EXPECT_EQ(Registry::appServicesHook(), services);

  const auto plugin = host.session().plugins().find(kModuleName);
  for (const char* name : {"uninitializePlugin", "initializePlugin"}) {
    const auto entryPoint = reinterpret_cast<EntryPoint>(plugin->symbol(name));
    EXPECT_TRUE(entryPoint(HostAccess::object(plugin))) << name;
    EXPECT_EQ(Registry::commandHook(), edits) << name;
    EXPECT_EQ(Registry::appServicesHook(), services) << name;
  }
  dlclose(module);
}

TEST_F(InstalledHook, TheEntryPointPutsNoHookOfAnotherAside) {
  void* module = dlopen(kModulePath, RTLD_NOW | RTLD_LOCAL);
  orvUI_v1::setCommandHook(nullptr, nullptr);
  orvUI_v1::setAppServicesHook(nullptr);
  ASSERT_TRUE(load());
  EXPECT_FALSE(Registry::commandHook()) << "initializePlugin installs nothing";
  EXPECT_FALSE(Registry::appServicesHook());
  dlclose(module);
}

TEST_F(InstalledHook, UnloadingLeavesNoHookBehind) {
  for (int i = 0; i < 3; ++i) {
    ASSERT_TRUE(load());
    EXPECT_TRUE(Registry::commandHook());
    ASSERT_TRUE(unload());
    EXPECT_FALSE(Registry::commandHook());
    EXPECT_FALSE(Registry::appServicesHook());
    EXPECT_FALSE(dlopen(kModulePath, RTLD_NOW | RTLD_NOLOAD)) << "it is unmapped";
  }
}

TEST_F(InstalledHook, IsGoneWhenTheSessionEnds) {
  ASSERT_TRUE(load());
  host.end();
  EXPECT_FALSE(Registry::commandHook());
  EXPECT_FALSE(Registry::appServicesHook());
}

TEST_F(InstalledHook, ANewLoadBeginsWithUndo) {
  ASSERT_TRUE(load());
  Registry::appServicesHook()->setUndoSuspended(true);
  ASSERT_TRUE(unload());
  host.run("undoInfo -stateWithoutFlush true");
  ASSERT_TRUE(load());
  ORV_v1::Container& graph = host.graph("g");
  host.session().undoQueue().clear();
  Registry::commandHook()->addNode(graph.getTopNode()->asCompound(), "core::math::add", "");
  EXPECT_THAT(host.steps(), testing::SizeIs(1));
}

}  // namespace

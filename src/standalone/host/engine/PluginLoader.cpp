#include "standalone/host/engine/PluginLoader.h"

#include <dlfcn.h>

#include <algorithm>
#include <cstring>
#include <filesystem>

#include "platform/OpenVesk/KStatus.h"
#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/engine/HostSession.h"
#include "standalone/host/engine/HostVersion.h"

namespace vesk {
namespace {

using EntryPoint = KStatus (*)(KObject);

constexpr const char* kInitialize = "initializePlugin";
constexpr const char* kUninitialize = "uninitializePlugin";
constexpr const char* kApiVersionSymbol = "KApiVersion";
constexpr std::size_t kApiVersionSize = 16;

EntryPoint entryPoint(const Plugin& plugin, const char* name) {
  return reinterpret_cast<EntryPoint>(plugin.symbol(name));
}

/// Why the mapped library is no module for this host; empty when it is one.
std::string missingPart(const Plugin& plugin) {
  for (const char* name : {kInitialize, kUninitialize, kApiVersionSymbol}) {
    if (!plugin.symbol(name)) return "it is no module: it does not export " + std::string(name);
  }
  const auto* version = static_cast<const char*>(plugin.symbol(kApiVersionSymbol));
  const std::string_view built(version, strnlen(version, kApiVersionSize));
  if (built == kApiVersion) return {};
  return "it was built for interface " + std::string(built) + ", and this host offers " +
         std::string(kApiVersion);
}

}  // namespace

Plugin::Plugin(std::string name, std::string path, void* library)
    : name_(std::move(name)), path_(std::move(path)), library_(library) {}

Plugin::~Plugin() { dlclose(library_); }

void* Plugin::symbol(const char* name) const { return dlsym(library_, name); }

const void* Plugin::base() const {
  Dl_info info{};
  return dladdr(symbol(kInitialize), &info) ? info.dli_fbase : nullptr;
}

KStatus PluginLoader::refuse(const std::string& path, std::string_view reason) const {
  session_.messages().error("cannot load the plug-in \"" + path + "\": " + std::string(reason));
  return StatusFailure;
}

std::shared_ptr<Plugin> PluginLoader::find(std::string_view name) const {
  const auto found = std::find_if(plugins_.begin(), plugins_.end(),
                                  [name](const auto& plugin) { return plugin->name() == name; });
  return found == plugins_.end() ? nullptr : *found;
}

std::shared_ptr<Plugin> PluginLoader::map(const std::string& path) {
  const std::string name = std::filesystem::path(path).stem().string();
  if (find(name)) {
    refuse(path, "a plug-in of the name \"" + name + "\" is loaded already");
    return nullptr;
  }
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) {
    refuse(path, std::filesystem::exists(path, error) ? "it is no file" : "there is no such file");
    return nullptr;
  }
  const std::string absolute = std::filesystem::absolute(path).string();
  void* library = dlopen(absolute.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (!library) {
    refuse(path, dlerror());
    return nullptr;
  }
  auto plugin = std::make_shared<Plugin>(name, absolute, library);
  if (const std::string missing = missingPart(*plugin); !missing.empty()) {
    refuse(path, missing);
    return nullptr;
  }
  return plugin;
}

bool PluginLoader::hasLeftovers(const Plugin& plugin) const {
  return session_.registry().hasCommandOf(&plugin) ||
         session_.sceneEvents().hasCallbackIn(plugin.base());
}

KStatus PluginLoader::load(const std::string& path) {
  const std::shared_ptr<Plugin> plugin = map(path);
  if (!plugin) return StatusFailure;
  plugins_.push_back(plugin);
  const KStatus status = entryPoint(*plugin, kInitialize)(HostAccess::object(plugin));
  plugin->initialized = static_cast<bool>(status);
  if (status) return status;
  const bool stays = hasLeftovers(*plugin);
  if (!stays) std::erase(plugins_, plugin);
  return refuse(path, "its initializePlugin failed with status " +
                          std::to_string(status.statusCode()) +
                          (stays ? "; what it registered stays until it is unloaded" : ""));
}

KStatus PluginLoader::unload(std::string_view name) {
  std::shared_ptr<Plugin> plugin = find(name);
  std::string reason;
  if (!plugin) {
    reason = "no plug-in of that name is loaded";
  } else if (session_.engine().isRunningCommandOf(plugin.get())) {
    reason = "one of its commands is running";
  } else if (session_.sceneEvents().isSending()) {
    reason = "scene callbacks are running";
  } else if (session_.undoQueue().isUndoing() || session_.undoQueue().isRedoing()) {
    reason = "an undo or redo is running";
  }
  if (!reason.empty()) {
    session_.messages().error("cannot unload the plug-in \"" + std::string(name) + "\": " + reason);
    return StatusFailure;
  }
  const KStatus status = entryPoint(*plugin, kUninitialize)(HostAccess::object(plugin));
  session_.undoQueue().removeCommandsOf(plugin.get());
  session_.registry().removeAllOf(plugin.get());
  session_.sceneEvents().removeThoseIn(plugin->base());
  std::erase(plugins_, plugin);
  if (!status) {
    session_.messages().warning("the plug-in \"" + std::string(name) +
                                "\" was unloaded, though its uninitializePlugin failed");
  }
  return status;
}

void PluginLoader::unloadAll() {
  std::vector<std::string> names;
  for (const auto& plugin : plugins_) names.push_back(plugin->name());
  for (auto name = names.rbegin(); name != names.rend(); ++name) {
    if (find(*name)) unload(*name);
  }
}

}  // namespace vesk

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

constexpr const char* kInitialize = "initializePlugin";
constexpr const char* kUninitialize = "uninitializePlugin";
constexpr const char* kApiVersionSymbol = "KApiVersion";
constexpr std::size_t kApiVersionSize = 16;

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
  for (const auto& loaded : plugins_) {
    if (!loaded->isMappedAt(library)) continue;
    dlclose(library);
    refuse(path, "it is the module of the plug-in \"" + loaded->name() + "\", loaded already");
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

KStatus PluginLoader::callEntryPoint(const std::shared_ptr<Plugin>& plugin, const char* name) {
  using EntryPoint = KStatus (*)(KObject);
  const auto function = reinterpret_cast<EntryPoint>(plugin->symbol(name));
  plugin->inEntryPoint = true;
  const KStatus status = function(HostAccess::object(plugin));
  plugin->inEntryPoint = false;
  return status;
}

void PluginLoader::removeLeftovers(const std::shared_ptr<Plugin>& plugin) {
  if (holder_) holder_->letGo(*plugin);
  session_.undoQueue().removeCommandsOf(plugin.get());
  session_.registry().removeAllOf(plugin.get());
  session_.sceneEvents().removeThoseIn(plugin->base());
  std::erase(plugins_, plugin);
}

KStatus PluginLoader::load(const std::string& path, std::string* name) {
  const std::shared_ptr<Plugin> plugin = map(path);
  if (!plugin) return StatusFailure;
  plugins_.push_back(plugin);
  const KStatus status = callEntryPoint(plugin, kInitialize);
  plugin->initialized = static_cast<bool>(status);
  if (status) {
    if (name) *name = plugin->name();
    return status;
  }
  const bool stays = hasLeftovers(*plugin);
  if (!stays) removeLeftovers(plugin);
  return refuse(path, "its initializePlugin failed with status " +
                          std::to_string(status.statusCode()) +
                          (stays ? "; what it registered stays until it is unloaded" : ""));
}

std::string PluginLoader::reasonToKeep(const Plugin& plugin) const {
  if (plugin.inEntryPoint) return "one of its entry points is running";
  if (session_.engine().isRunningCommandOf(&plugin)) return "one of its commands is running";
  if (session_.sceneEvents().isSending()) return "scene callbacks are running";
  const UndoQueue& queue = session_.undoQueue();
  if (queue.isUndoing() || queue.isRedoing()) return "an undo or redo is running";
  return holder_ ? holder_->reasonToKeep(plugin) : "";
}

KStatus PluginLoader::unload(std::string_view name) {
  const std::shared_ptr<Plugin> plugin = find(name);
  const std::string reason = plugin ? reasonToKeep(*plugin) : "no plug-in of that name is loaded";
  if (!reason.empty()) {
    session_.messages().error("cannot unload the plug-in \"" + std::string(name) + "\": " + reason);
    return StatusFailure;
  }
  const KStatus status = callEntryPoint(plugin, kUninitialize);
  removeLeftovers(plugin);
  if (!status) {
    session_.messages().warning("the plug-in \"" + plugin->name() +
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

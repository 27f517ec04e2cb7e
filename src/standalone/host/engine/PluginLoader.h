#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/OpenVesk/KStatus.h"
#include "standalone/host/engine/HostObject.h"

namespace vesk {

class HostSession;

/// A loaded module.
class Plugin : public HostObject {
 public:
  Plugin(std::string name, std::string path, void* library);
  ~Plugin() override;  ///< unmaps the module

  const std::string& name() const { return name_; }
  const std::string& path() const { return path_; }
  void* symbol(const char* name) const;

  bool isMappedAt(const void* library) const { return library_ == library; }

  /// Where the module is mapped.
  const void* base() const;

  // What the module says of itself in its entry points.
  std::string vendor;
  std::string version;
  bool initialized = false;   ///< its entry point reported success
  bool inEntryPoint = false;  ///< one of its entry points is running

 private:
  std::string name_;
  std::string path_;
  void* library_;
};

/// Someone who may hold what a module made and the host knows nothing of, such as widgets.
class PluginHolder {
 public:
  virtual ~PluginHolder() = default;

  /// Why the module must stay for now; empty when it may go.
  virtual std::string reasonToKeep(const Plugin& plugin) = 0;

  /// The module has been uninitialised, and its code goes next.
  virtual void letGo(const Plugin& plugin) = 0;
};

/// Loads and unloads modules. Refusals are shown as errors that name the file and the reason.
class PluginLoader {
 public:
  explicit PluginLoader(HostSession& session) : session_(session) {}

  /// Maps the module and calls its `initializePlugin`. A module whose entry point fails stays
  /// loaded if it left commands or callbacks behind, until it is unloaded.
  /// `name`, where given, receives the plug-in's name on success.
  KStatus load(const std::string& path, std::string* name = nullptr);

  /// Calls `uninitializePlugin`, removes whatever the module left in the host, its commands on the
  /// undo queue among it, and unmaps it.
  KStatus unload(std::string_view name);

  /// In reverse order of loading. What cannot be unloaded just now stays.
  void unloadAll();

  /// Asked and told before a module goes; null for nobody.
  void setHolder(PluginHolder* holder) { holder_ = holder; }

  /// Null for a name that is not loaded.
  std::shared_ptr<Plugin> find(std::string_view name) const;
  const std::vector<std::shared_ptr<Plugin>>& plugins() const { return plugins_; }

 private:
  std::shared_ptr<Plugin> map(const std::string& path);
  static KStatus callEntryPoint(const std::shared_ptr<Plugin>& plugin, const char* name);
  std::string reasonToKeep(const Plugin& plugin) const;
  void removeLeftovers(const std::shared_ptr<Plugin>& plugin);
  bool hasLeftovers(const Plugin& plugin) const;
  KStatus refuse(const std::string& path, std::string_view reason) const;

  HostSession& session_;
  PluginHolder* holder_ = nullptr;
  std::vector<std::shared_ptr<Plugin>> plugins_;
};

}  // namespace vesk

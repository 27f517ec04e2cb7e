#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vesk {

/// Where scenes are read from and written to.
class SceneStore {
 public:
  SceneStore() = default;
  SceneStore(const SceneStore&) = delete;
  SceneStore& operator=(const SceneStore&) = delete;
  virtual ~SceneStore() = default;

  /// The bytes, or nothing and the reason.
  virtual std::optional<std::string> read(const std::string& path, std::string& reason) = 0;

  /// Puts these bytes in the place of the old ones at once. Empty, or the reason why the old ones
  /// are still there.
  virtual std::string write(const std::string& path, std::string_view bytes) = 0;

  /// Files; there before any session and after all of them.
  static SceneStore& files();
};

}  // namespace vesk

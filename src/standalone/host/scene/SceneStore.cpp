#include "standalone/host/scene/SceneStore.h"

#include "standalone/host/engine/AtomicFile.h"

namespace vesk {
namespace {

class Files final : public SceneStore {
 public:
  std::optional<std::string> read(const std::string& path, std::string& reason) override {
    return readWholeFile(path, reason);
  }

  std::string write(const std::string& path, std::string_view bytes) override {
    return writeAtomically(path, bytes);
  }
};

}  // namespace

SceneStore& SceneStore::files() {
  static Files only;
  return only;
}

}  // namespace vesk

#pragma once

#include <memory>
#include <string>
#include <utility>

#include "standalone/host/scene/SceneStore.h"

namespace vesk {

class HostSession;

/// The journal that a session keeps by itself, from which its work can be done again after an
/// abrupt end. It goes with the session: what is left on the disk is what was abandoned.
///
/// It tells which scenes were opened and saved, and keeps what was opened, since the file may be
/// another when the journal is replayed.
class KeptJournal final : public SceneStore {
 public:
  /// Null, with the reason, when there cannot be one in that folder.
  static std::unique_ptr<KeptJournal> begin(const std::string& folder, HostSession& session,
                                            std::string& reason);
  ~KeptJournal() override;

  /// From now on scenes come from there and go there; returns where they did before.
  SceneStore& exchangeStore(SceneStore& store) { return *std::exchange(store_, &store); }

  /// Whether all that was to be written is on the disk.
  bool isSafe();

  /// A scene that is modified when the session ends is not given up unless the user quits.
  void keepUnsavedWork() { keepsUnsavedWork_ = true; }

  std::optional<std::string> read(const std::string& path, std::string& reason) override;
  std::string write(const std::string& path, std::string_view bytes) override;

 private:
  KeptJournal(std::string path, int lock, HostSession& session);

  bool keepsCopy(std::string_view bytes, const std::string& path);
  void note(std::string_view mark, const std::string& path);

  std::string path_;
  int lock_;  ///< descriptor
  HostSession& session_;
  SceneStore* store_;  ///< behind this one
  int opened_ = 0;
  bool lacksCopy_ = false;
  bool keepsUnsavedWork_ = false;
};

}  // namespace vesk

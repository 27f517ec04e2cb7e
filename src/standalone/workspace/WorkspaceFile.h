#pragma once

#include <QByteArray>
#include <optional>
#include <string>
#include <vector>

#include "standalone/workspace/Panel.h"

namespace vesk {

/// What a saved workspace holds: where the window is, how its panels are arranged, both as Qt
/// writes them, and what the panels are that are not the host's own.
struct WorkspaceState {
  QByteArray geometry;
  QByteArray arrangement;
  std::vector<PanelSettings> panels;
};

/// The state as a text of JSON.
std::string workspaceText(const WorkspaceState& state);

/// The state that a file holds. Nothing and no reason when there is no file; nothing and the reason
/// when it is damaged.
std::optional<WorkspaceState> readWorkspaceFile(const std::string& path, std::string& reason);

}  // namespace vesk

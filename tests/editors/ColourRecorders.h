#pragma once

#include <QString>
#include <utility>
#include <vector>

#include "platform/OpenVesk/KStatus.h"
#include "platform/orvUI_1_0/ColorManagementHandler.h"

/// What the module's colour management asks of the host and of its base. The functions that record
/// stand in place of those of the libraries and do their work.
struct ColourRecorders {
  struct Transform {
    int direction;
    const KStatus* status;  ///< null too where there is none
  };

  std::vector<Transform> mixing;
  std::vector<Transform> views;
  std::vector<int> baseDirections;
  int questionsForViews = 0;

  /// Whether a handler was registered when a helper was made last.
  bool registeredBeforeHelper = false;

  static ColourRecorders& instance();
};

/// What the base keeps, as it would be stored: space and view. The preferences stay as they are.
std::pair<QString, QString> keptByBase(const orvUI_v1::ColorManagementHandler& handler);

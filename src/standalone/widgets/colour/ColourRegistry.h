#pragma once

#include <QObject>

#include "platform/orvUI_1_0/ColorManagementHandler.h"

namespace orvuilib {

/// The colour management that the editors use, and their eye-dropper.
class ORVUI_EXPORT ColourRegistry final : public QObject {
  Q_OBJECT

 public:
  static ColourRegistry& instance();

  /// Null when there is none: colours are then shown and mixed as they are.
  orvUI_v1::ColorManagementHandler* handler() const { return handler_; }
  void setHandler(orvUI_v1::ColorManagementHandler* handler);

  /// Takes the handler back if it is this one.
  void forget(const orvUI_v1::ColorManagementHandler& handler);

  /// Null when there is none.
  orvUI_v1::EyeDropperHandler eyeDropper() const { return eyeDropper_; }
  void setEyeDropper(orvUI_v1::EyeDropperHandler picker) { eyeDropper_ = picker; }

  /// Says that what colours look like has changed: another handler, space, view or switch.
  void tellChange() { emit changed(); }

 signals:
  void changed();

 private:
  ColourRegistry() = default;

  orvUI_v1::ColorManagementHandler* handler_ = nullptr;
  orvUI_v1::EyeDropperHandler eyeDropper_ = nullptr;
};

}  // namespace orvuilib

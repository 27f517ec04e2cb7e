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

  /// Lets the handler restore the user's choice.
  void restorePreferences();

  /// Does so unless it was done for this handler. For editors that show colours, when they open: a
  /// handler that is registered begins with what the program has.
  void takeUpPreferences();

  /// Null when there is none.
  orvUI_v1::EyeDropperHandler eyeDropper() const { return eyeDropper_; }
  void setEyeDropper(orvUI_v1::EyeDropperHandler picker);

  /// Says that what colours look like has changed: another handler, space, view or switch.
  void tellChange() { emit changed(); }

 signals:
  /// What colours look like, or the eye-dropper.
  void changed();

 private:
  ColourRegistry() = default;

  orvUI_v1::ColorManagementHandler* handler_ = nullptr;
  orvUI_v1::EyeDropperHandler eyeDropper_ = nullptr;
  bool restored_ = false;  ///< the choice, by this handler
};

}  // namespace orvuilib

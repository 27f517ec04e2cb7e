#pragma once

#include <QList>
#include <QString>

#include "platform/orvUI_1_0/HIGColor.h"
#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvUI_v1 {

/// The colour management that the editors show and mix colours with. A program derives its own and
/// registers it. The base by itself leaves every colour as it is, and keeps the user's choice: its
/// bodies say what they keep. The order of the operations is part of the interface.
class ORVUI_EXPORT ColorManagementHandler {
 public:
  enum Direction : int {
    kForward = 0,  ///< for showing: from the rendering space into the mixing space or the view
    kInverse = 1,  ///< for taking over: back into the rendering space
  };

  ColorManagementHandler(const ColorManagementHandler&) = delete;
  ColorManagementHandler& operator=(const ColorManagementHandler&) = delete;

  /// When it is registered it is so no longer.
  virtual ~ColorManagementHandler();

  /// Whether the program has colour management at all.
  virtual bool isColorManagementAvailable() = 0;

  /// Whether the user wants it; true at first.
  virtual bool enabled() const;
  virtual void setEnabled(bool enabled);

  /// The spaces in which colours can be mixed.
  virtual QList<QString> getMixingSpaceNames() = 0;
  virtual QString mixingSpace() = 0;

  /// False, and nothing changed, for a space that cannot be used. The base keeps any name, for
  /// `saveUserPrefs`, forgets the view of another space, and says true.
  virtual bool setMixingSpace(const QString& name);

  /// The views of the mixing space; none when it has none.
  virtual QList<QString> getViewSpaceNames() = 0;
  virtual QString viewSpace() = 0;

  /// As `setMixingSpace`.
  virtual bool setViewSpace(const QString& name);

  /// The colour in the other space. The base gives it back as it is, whatever the direction.
  virtual HIGColor applyMixingTransform(const HIGColor& color, Direction direction) const;

  /// Where a value stands on a slider between two ends, and the value that a position means. The
  /// base gives the value back.
  virtual float mixingToSlider(float value, float minimum, float maximum) const;
  virtual float sliderToMixing(float position, float minimum, float maximum) const;

  /// The colour as it is painted on the screen, and back.
  virtual HIGColor applyViewTransform(const HIGColor& color, Direction direction) = 0;

  /// Makes the choice that was stored the choice in force; what is not stored, or cannot be used
  /// any more, stays as it is.
  virtual void restoreUserPrefs();

  /// Stores whether it is enabled, and the spaces that the base was last told, with the preferences
  /// of the editors. A space that the base was not told stays stored, and with it its view.
  virtual void saveUserPrefs() const;

  /// Makes the handler that of all editors; null takes it back. It stays the caller's, and may go
  /// while it is registered. Its choice is as it is until preferences come, or the first editor of
  /// colours opens: then it is to restore what is stored.
  static void registerCMHandler(ColorManagementHandler* handler);

 protected:
  ColorManagementHandler();

 private:
  bool enabled_ = true;
  QString mixingSpace_;
  QString viewSpace_;
};

/// Lets the user pick a colour of the screen and waits for it. True when one was picked; the colour
/// may be overwritten in any case.
using EyeDropperHandler = bool (*)(HIGColor* color);

/// What the editors' eye-dropper calls; null is none.
ORVUI_EXPORT void setEyeDropperHandler(EyeDropperHandler handler);

}  // namespace orvUI_v1

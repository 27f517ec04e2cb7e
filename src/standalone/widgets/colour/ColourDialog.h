#pragma once

#include <QDialog>

#include "platform/orvUI_1_0/HIGColor.h"
#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

class ColourPicker;

/// A picker in a window of its own, which tells of the colour while it is mixed and of the choice
/// at its end: one choice, however much was tried.
class ORVUI_EXPORT ColourDialog : public QDialog {
  Q_OBJECT

 public:
  ColourDialog(const orvUI_v1::HIGColor& colour, QWidget* parent);

  ColourPicker& picker() { return *picker_; }

  void done(int result) override;

 signals:
  void changing(const orvUI_v1::HIGColor& colour);

  /// The user took the colour, which differs from the one before.
  void chosen(const orvUI_v1::HIGColor& colour);

  /// The user left it at the colour before, by escape or by taking it again.
  void cancelled();

 private:
  ColourPicker* picker_;
  orvUI_v1::HIGColor before_;
};

}  // namespace orvuilib

#pragma once

#include <QAbstractButton>

#include "platform/orvUI_1_0/HIGColor.h"
#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// A field of one colour, which is a button.
class ORVUI_EXPORT ColourButton final : public QAbstractButton {
 public:
  explicit ColourButton(QWidget* parent);

  void showColour(const orvUI_v1::HIGColor& colour);

  /// Several colours that differ.
  void showMixed();

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  orvUI_v1::HIGColor colour_;
  bool mixed_ = false;
};

}  // namespace orvuilib

#pragma once

#include <QWidget>

#include "standalone/widgets/look/Theme.h"

namespace orvuilib {

/// All keys of the editor, over its canvas; any key or click takes it away.
class HelpOverlay final : public QWidget {
 public:
  HelpOverlay(const Theme& theme, QWidget* parent);
  void open();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void leave();

  const Theme& theme_;
};

}  // namespace orvuilib

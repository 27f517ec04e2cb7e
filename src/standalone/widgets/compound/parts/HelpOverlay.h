#pragma once

#include <QScrollArea>

#include "standalone/widgets/look/Theme.h"

namespace orvuilib {

/// What mouse and keys do in the editor, over its canvas. It scrolls where it does not fit; any
/// other key or a click takes it away.
class HelpOverlay final : public QScrollArea {
 public:
  HelpOverlay(const Theme& theme, QWidget* parent);
  void open();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool event(QEvent* event) override;

 private:
  class Page;

  void leave();

  const Theme& theme_;
  Page* page_;
};

}  // namespace orvuilib

#pragma once

#include <QAbstractButton>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// The heading of a group, which a click, Space or Return opens and closes.
class ORVUI_EXPORT GroupHeader final : public QAbstractButton {
 public:
  explicit GroupHeader(QWidget* parent);

  void showGroup(const QString& title, bool open);

  static int heightOf(const QWidget& styled);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool open_ = true;
};

}  // namespace orvuilib

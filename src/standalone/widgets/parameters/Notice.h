#pragma once

#include <QLabel>
#include <QTimer>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// Says what went wrong, for a while.
class ORVUI_EXPORT Notice final : public QLabel {
 public:
  explicit Notice(QWidget* parent);

  void tell(const QString& text);

 private:
  QTimer timer_;
};

}  // namespace orvuilib

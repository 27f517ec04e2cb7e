#pragma once

#include <QLabel>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// Says at the lower edge of an editor, beside a lock, why nothing can be edited.
class ORVUI_EXPORT ReadOnlyNote final : public QLabel {
 public:
  explicit ReadOnlyNote(QWidget* parent);

  /// No reason hides it.
  void tell(const QString& reason);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int lockSide() const;
};

}  // namespace orvuilib

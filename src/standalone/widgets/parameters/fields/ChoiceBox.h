#pragma once

#include <QComboBox>
#include <functional>
#include <vector>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/Choices.h"

namespace orvuilib {

/// A list of choices, one of which is the value.
class ORVUI_EXPORT ChoiceBox final : public QComboBox {
 public:
  explicit ChoiceBox(QWidget* parent);

  void setChoices(const std::vector<Choice>& choices);

  /// A value that is no choice is shown by itself.
  void showValue(const QString& value);

  /// Several values that differ.
  void showMixed();

  /// Called with the value of what a user chose, when it is another than before.
  std::function<void(const QString&)> chosen;

 protected:
  void wheelEvent(QWheelEvent* event) override;

 private:
  QStringList values_;
  QString value_;
  bool mixed_ = false;
};

}  // namespace orvuilib

#include "standalone/widgets/parameters/fields/ChoiceBox.h"

#include <QSignalBlocker>
#include <QWheelEvent>

#include "standalone/widgets/parameters/FieldStyle.h"

namespace orvuilib {

ChoiceBox::ChoiceBox(QWidget* parent) : QComboBox(parent) {
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  setMinimumContentsLength(1);
  FieldStyle::applyTo(*this);
  connect(this, &QComboBox::activated, this, [this](int index) {
    const QString value = values_.value(index);
    if (!mixed_ && value == value_) return;
    if (chosen) chosen(value);
  });
}

void ChoiceBox::setChoices(const std::vector<Choice>& choices) {
  QStringList values;
  QStringList labels;
  for (const Choice& choice : choices) {
    values.append(choice.value);
    labels.append(choice.label);
  }
  QStringList shown;
  for (int i = 0; i < count(); ++i) shown.append(itemText(i));
  if (values == values_ && labels == shown) return;
  const QSignalBlocker quiet(this);
  values_ = values;
  clear();
  addItems(labels);
}

void ChoiceBox::showValue(const QString& value) {
  const QSignalBlocker quiet(this);
  value_ = value;
  mixed_ = false;
  setPlaceholderText(value);
  setCurrentIndex(static_cast<int>(values_.indexOf(value)));
}

void ChoiceBox::showMixed() {
  const QSignalBlocker quiet(this);
  mixed_ = true;
  setPlaceholderText(QString(QChar(0x2014)));
  setCurrentIndex(-1);
}

/// The wheel scrolls the rows, and changes no value by the way.
void ChoiceBox::wheelEvent(QWheelEvent* event) { event->ignore(); }

}  // namespace orvuilib

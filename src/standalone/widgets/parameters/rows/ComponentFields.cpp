#include "standalone/widgets/parameters/rows/ComponentFields.h"

#include <QCheckBox>

#include "standalone/widgets/look/Feeding.h"
#include "standalone/widgets/parameters/FieldStyle.h"
#include "standalone/widgets/parameters/fields/NumberField.h"
#include "standalone/widgets/parameters/fields/TextField.h"
#include "standalone/widgets/parameters/rows/CheckState.h"

namespace orvuilib {

using orvlib::ScalarKind;
using orvlib::ValueType;

ComponentFields::ComponentFields(const ValueType& type, const NumberFormat& format, Edits edits,
                                 QWidget* parent)
    : edits_(std::move(edits)) {
  for (std::size_t i = 0; i < type.componentCount(); ++i) {
    QWidget* field = makeField(static_cast<int>(i), type, format, parent);
    const QString name = i < type.components.size() ? toText(type.components[i]) : QString();
    field->setObjectName(name);
    auto* entry = dynamic_cast<EntryField*>(field);
    if (entry && type.componentCount() <= 4) entry->setCaption(name);
    if (!entry) field->setToolTip(name);
    fields_.push_back(field);
  }
}

QWidget* ComponentFields::makeField(int index, const ValueType& type, const NumberFormat& format,
                                    QWidget* parent) {
  if (type.scalar == ScalarKind::Boolean) return makeCheck(index, parent);
  if (type.scalar == ScalarKind::String) return makeText(index, parent);
  return makeNumber(index, format, parent);
}

QWidget* ComponentFields::makeNumber(int index, const NumberFormat& format, QWidget* parent) {
  auto* field = new NumberField(format, parent);
  field->entered = [this, index](const QString& text) { edits_.entered(index, text); };
  field->stepped = [this, index](const QString& text) { edits_.stepped(index, text); };
  field->stepsEnded = [this] { edits_.stepsEnded(); };
  field->stepsCancelled = [this] { edits_.stepsCancelled(); };
  return field;
}

QWidget* ComponentFields::makeText(int index, QWidget* parent) {
  auto* field = new TextField(parent);
  field->entered = [this, index](const QString& text) { edits_.entered(index, text); };
  return field;
}

QWidget* ComponentFields::makeCheck(int index, QWidget* parent) {
  auto* box = new QCheckBox(parent);
  FieldStyle::applyTo(*box);
  QObject::connect(box, &QCheckBox::clicked, box, [this, index, box] {
    edits_.entered(index, takeClick(*box) ? "true" : "false");
  });
  return box;
}

void ComponentFields::show(const RowState& state) {
  for (std::size_t i = 0; i < fields_.size(); ++i) showComponent(i, state);
}

void ComponentFields::showComponent(std::size_t index, const RowState& state) {
  QWidget* field = fields_[index];
  const QString text = state.texts.value(static_cast<qsizetype>(index));
  const bool mixed = state.isMixed(index);
  const auto& source = state.componentSources[index];
  field->setEnabled(!source);
  if (source) field->setToolTip("from " + sourceName(*source));
  if (auto* box = qobject_cast<QCheckBox*>(field)) {
    showCheck(*box, text == "true", mixed);
    return;
  }
  auto* entry = static_cast<EntryField*>(field);
  if (mixed) {
    entry->showMixed();
  } else {
    entry->showValue(text);
  }
}

void ComponentFields::setFormat(const NumberFormat& format) {
  for (QWidget* field : fields_) {
    if (auto* number = dynamic_cast<NumberField*>(field)) number->setFormat(format);
  }
}

void ComponentFields::place(const QRect& place, int columns, int gap) const {
  const int count = static_cast<int>(fields_.size());
  const int lines = (count + columns - 1) / columns;
  const double width = (place.width() + gap) / static_cast<double>(columns);
  const double height = (place.height() + gap) / static_cast<double>(lines);
  for (int i = 0; i < count; ++i) {
    const int left = place.left() + static_cast<int>(width * (i % columns));
    const int right = place.left() + static_cast<int>(width * (i % columns + 1));
    const int top = place.top() + static_cast<int>(height * (i / columns));
    const int bottom = place.top() + static_cast<int>(height * (i / columns + 1));
    fields_[static_cast<std::size_t>(i)]->setGeometry(left, top, right - left - gap,
                                                      bottom - top - gap);
  }
}

}  // namespace orvuilib

#pragma once

#include <QCheckBox>

namespace orvuilib {

/// Shows one truth value, or several that differ.
inline void showCheck(QCheckBox& box, bool on, bool mixed) {
  const QSignalBlocker quiet(box);
  box.setTristate(mixed);
  box.setCheckState(mixed ? Qt::PartiallyChecked : on ? Qt::Checked : Qt::Unchecked);
}

/// What a click on the box chose. From several values that differ a click leads to true.
inline bool takeClick(QCheckBox& box) {
  const bool on = box.isTristate() || box.isChecked();
  showCheck(box, on, false);
  return on;
}

}  // namespace orvuilib

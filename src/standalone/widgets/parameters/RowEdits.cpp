#include "standalone/widgets/parameters/RowEdits.h"

#include <algorithm>

namespace orvuilib {

using orvlib::PortRef;

RowEdits::RowEdits(ParameterRow row) : row_(std::move(row)) { readAgain(); }

void RowEdits::setRow(ParameterRow row) {
  const auto isSame = [](const PortRef& a, const PortRef& b) { return a.get() == b.get(); };
  if (!std::ranges::equal(row.ports, row_.ports, isSame)) cancel();
  row_ = std::move(row);
  readAgain();
}

void RowEdits::readAgain() { state_ = readState(row_); }

std::vector<PortRef> RowEdits::editablePorts() const {
  std::vector<PortRef> ports;
  std::ranges::copy_if(row_.ports, std::back_inserter(ports), [](const PortRef& port) {
    return canEdit(*port) && !(port->isInput() && isConnected(*port));
  });
  return ports;
}

std::vector<PortValue> RowEdits::values(const QStringList& texts) const {
  std::vector<PortValue> values;
  for (const PortRef& port : editablePorts()) values.push_back({port, texts});
  return values;
}

/// Each port keeps its other components.
std::vector<PortValue> RowEdits::values(int index, const QString& text) const {
  std::vector<PortValue> values;
  for (const PortRef& port : editablePorts()) {
    QStringList texts = valueTexts(*port);
    if (index >= texts.size()) continue;
    texts[index] = text;
    values.push_back({port, texts});
  }
  return values;
}

QString RowEdits::stepName(const char* verb) const {
  return QString("%1 %2").arg(verb, row_.label);
}

void RowEdits::set(const QStringList& texts) { setPortValues(values(texts), stepName("Set")); }

void RowEdits::setComponent(int index, const QString& text) {
  setPortValues(values(index, text), stepName("Set"));
}

void RowEdits::reset() { resetPortValues(editablePorts(), stepName("Reset")); }

void RowEdits::show(const QStringList& texts) { show(values(texts)); }

void RowEdits::showComponent(int index, const QString& text) { show(values(index, text)); }

void RowEdits::show(const std::vector<PortValue>& values) {
  if (!live_) live_ = std::make_unique<LiveEdit>(editablePorts());
  live_->show(values);
}

void RowEdits::end() {
  // The commit may lead back here.
  const auto live = std::move(live_);
  if (live) live->commit(stepName("Set"));
}

void RowEdits::cancel() { live_.reset(); }

}  // namespace orvuilib

#include "standalone/widgets/parameters/RowEdits.h"

#include <algorithm>

#include "standalone/widgets/look/Feeding.h"

namespace orvuilib {

using orvlib::PortRef;

RowEdits::RowEdits(ParameterRow row) : row_(std::move(row)) { readAgain(); }

void RowEdits::setRow(ParameterRow row) {
  const auto isSame = [](const PortRef& a, const PortRef& b) { return a.get() == b.get(); };
  if (!std::ranges::equal(row.ports, row_.ports, isSame)) cancel();
  row_ = std::move(row);
  readAgain();
}

void RowEdits::readAgain() {
  if (live_) live_->follow();
  state_ = readState(row_);
}

std::vector<PortRef> RowEdits::editablePorts() const {
  std::vector<PortRef> ports;
  std::ranges::copy_if(row_.ports, std::back_inserter(ports),
                       [](const PortRef& port) { return canEdit(*port) && !isFed(*port); });
  return ports;
}

std::vector<PortValue> RowEdits::values(const Change& change) const {
  std::vector<PortValue> values;
  for (const PortRef& port : editablePorts()) {
    if (auto texts = change(valueTexts(*port))) values.push_back({port, *std::move(texts)});
  }
  return values;
}

QString RowEdits::stepName(const char* verb) const {
  return QString("%1 %2").arg(verb, row_.label);
}

bool RowEdits::change(const Change& change) {
  return setPortValues(values(change), stepName("Set"));
}

bool RowEdits::reset() { return resetPortValues(editablePorts(), stepName("Reset")); }

void RowEdits::show(const Change& change) {
  if (!live_) live_ = std::make_unique<LiveEdit>(editablePorts());
  live_->show(values(change));
}

bool RowEdits::end() {
  // The commit may lead back here.
  const auto live = std::move(live_);
  return !live || live->commit(stepName("Set"));
}

void RowEdits::cancel() { live_.reset(); }

RowEdits::Change toValue(const QStringList& texts) {
  return [texts](const QStringList&) { return std::optional(texts); };
}

RowEdits::Change toPart(int first, const QStringList& texts) {
  return [first, texts](const QStringList& all) -> std::optional<QStringList> {
    if (first < 0 || first + texts.size() > all.size()) return std::nullopt;
    return all.mid(0, first) + texts + all.mid(first + texts.size());
  };
}

}  // namespace orvuilib

#include "standalone/widgets/compound/scene/ShownValue.h"

#include <algorithm>

#include "standalone/graph/texts/ListText.h"
#include "standalone/widgets/compound/scene/BoxLayout.h"

namespace orvuilib {

using orvlib::FloatForm;
using orvlib::Value;

namespace {

constexpr std::size_t kMostComponents = 16;
constexpr int kDigits = 6;
constexpr int kLongest = 28;

std::size_t countOf(const Value& value) {
  return std::visit([](const auto& all) { return all.size(); }, value);
}

/// An array may be long, and only its beginning is seen.
Value beginningOf(const Value& value) {
  return std::visit(
      [](const auto& all) -> Value {
        const auto count = static_cast<std::ptrdiff_t>(std::min(all.size(), kMostComponents));
        return std::decay_t<decltype(all)>(all.begin(), all.begin() + count);
      },
      value);
}

/// The fewest digits that give back a number in single precision are often many more than one wants
/// to read.
void shorten(std::string& number) {
  bool isNumber = false;
  const double read = QString::fromStdString(number).toDouble(&isNumber);
  if (!isNumber) return;
  const QString few = QString::number(read, 'g', kDigits);
  if (static_cast<std::size_t>(few.size()) < number.size()) number = few.toStdString();
}

}  // namespace

QString lastValueOf(const orvlib::WatchPointObject& watchPoint) {
  if (watchPoint.records().empty()) return {};
  const Value& value = watchPoint.records().back().value;
  const FloatForm form = watchPoint.setup().form;
  std::vector<std::string> texts = orvlib::printValue(beginningOf(value), form);
  const bool isShort = form.style == FloatForm::Style::Shortest &&
                       orvlib::scalarKindOf(value) == orvlib::ScalarKind::Float;
  if (isShort) std::ranges::for_each(texts, shorten);
  const QString text = QString::fromStdString(orvlib::writeList(texts)).simplified();
  const std::size_t count = countOf(value);
  if (text.size() <= kLongest && count <= kMostComponents) return text;
  const QString size = count > kMostComponents ? QString(" (%1)").arg(count) : QString();
  return text.left(kLongest - 1 - size.size()) + QChar(0x2026) + size;
}

QString lastValueOf(const orvlib::PortObject& port) {
  const orvlib::WatchPointObject* watchPoint = watchOf(port);
  return watchPoint ? lastValueOf(*watchPoint) : QString();
}

}  // namespace orvuilib

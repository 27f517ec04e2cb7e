#include "standalone/widgets/parameters/rows/arrayChanges.h"

namespace orvuilib {

using orvlib::ScalarKind;
using orvlib::ValueType;

namespace {

QString zeroText(ScalarKind kind) {
  if (kind == ScalarKind::String) return {};
  return kind == ScalarKind::Boolean ? "false" : "0";
}

int widthOf(const ValueType& type) { return static_cast<int>(type.componentCount()); }

int countOf(const QStringList& texts, int width) { return static_cast<int>(texts.size()) / width; }

}  // namespace

RowEdits::Change addElement(int after, const ValueType& type) {
  const int width = widthOf(type);
  const QStringList zeros(width, zeroText(type.scalar));
  return [=](const QStringList& texts) -> std::optional<QStringList> {
    const int count = countOf(texts, width);
    if (after >= count) return std::nullopt;
    const int at = (after == kLastElement ? count : after + 1) * width;
    return texts.mid(0, at) + zeros + texts.mid(at);
  };
}

RowEdits::Change removeElement(int element, const ValueType& type) {
  const int width = widthOf(type);
  return [=](const QStringList& texts) -> std::optional<QStringList> {
    const int count = countOf(texts, width);
    const int which = element == kLastElement ? count - 1 : element;
    if (which < 0 || which >= count) return std::nullopt;
    return texts.mid(0, which * width) + texts.mid((which + 1) * width);
  };
}

RowEdits::Change moveElement(int from, int to, const ValueType& type) {
  const int width = widthOf(type);
  return [=](const QStringList& texts) -> std::optional<QStringList> {
    const int count = countOf(texts, width);
    if (from < 0 || to < 0 || from >= count || to >= count) return std::nullopt;
    const QStringList element = texts.mid(from * width, width);
    QStringList rest = texts.mid(0, from * width) + texts.mid((from + 1) * width);
    return rest.mid(0, to * width) + element + rest.mid(to * width);
  };
}

}  // namespace orvuilib

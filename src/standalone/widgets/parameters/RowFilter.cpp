#include "standalone/widgets/parameters/RowFilter.h"

#include <algorithm>

#include "standalone/widgets/parameters/RowState.h"

namespace orvuilib {

RowFilter::RowFilter(const QString& typed) : text_(typed.trimmed()) {
  const std::pair<QString, Kind> prefixes[] = {
      {"name:", Kind::Name}, {"type:", Kind::Type}, {"value:", Kind::Value}};
  for (const auto& [prefix, kind] : prefixes) {
    if (!text_.startsWith(prefix, Qt::CaseInsensitive)) continue;
    kind_ = kind;
    text_ = text_.mid(prefix.size()).trimmed();
    return;
  }
}

/// Arrays, which may be long, are passed over.
bool RowFilter::hasValue(const ParameterRow& row) const {
  if (row.type().isArray()) return false;
  return std::ranges::any_of(row.ports, [this](const orvlib::PortRef& port) {
    return valueTexts(*port).join(", ").contains(text_, Qt::CaseInsensitive);
  });
}

bool RowFilter::passes(const ParameterRow& row) const {
  const auto contains = [this](const QString& all) {
    return all.contains(text_, Qt::CaseInsensitive);
  };
  const QString type = toText(row.type().name);
  switch (kind_) {
    case Kind::Name:
      return contains(row.label);
    case Kind::Type:
      return contains(type);
    case Kind::Value:
      return hasValue(row);
    default:
      return contains(row.label) || type.startsWith(text_, Qt::CaseInsensitive) || hasValue(row);
  }
}

}  // namespace orvuilib

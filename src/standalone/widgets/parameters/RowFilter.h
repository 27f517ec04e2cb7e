#pragma once

#include <QString>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/ParameterRow.h"

namespace orvuilib {

/// What is searched for among rows, whatever its case: what the name or a value contains, or what
/// the name of the type begins with. "name:", "type:" and "value:" before it ask for one of them,
/// anywhere in it.
class ORVUI_EXPORT RowFilter {
 public:
  RowFilter() = default;
  explicit RowFilter(const QString& typed);

  bool isEmpty() const { return text_.isEmpty(); }
  bool passes(const ParameterRow& row) const;

  bool operator==(const RowFilter& other) const = default;

 private:
  enum class Kind { Any, Name, Type, Value };

  bool hasValue(const ParameterRow& row) const;

  Kind kind_ = Kind::Any;
  QString text_;
};

}  // namespace orvuilib

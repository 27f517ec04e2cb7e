#pragma once

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/fields/EntryField.h"

namespace orvuilib {

/// A text as it is, line ends included.
class ORVUI_EXPORT TextField final : public EntryField {
 public:
  using EntryField::EntryField;

 protected:
  std::optional<QString> read(const QString& text, QString&) const override { return text; }
};

}  // namespace orvuilib

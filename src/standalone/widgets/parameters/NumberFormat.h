#pragma once

#include <QString>
#include <optional>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/PortObject.h"

namespace orvuilib {

/// How the numbers of a row are entered, shown and stepped.
struct ORVUI_EXPORT NumberFormat {
  orvlib::ScalarKind kind = orvlib::ScalarKind::Float;

  /// How many are shown after the point while the number is not edited.
  int decimals = 3;

  /// What may be entered.
  std::optional<double> least;
  std::optional<double> most;

  /// What an arrow key adds.
  double step = 0.1;

  /// The text in the form in which the graph has it. Nothing, with a reason, for a text that is no
  /// number and for one out of range.
  std::optional<QString> read(const QString& text, QString& reason) const;

  /// `full` with `decimals` at most, and without zeros at its end.
  QString shortened(const QString& full) const;

  /// The text for a number, rounded to a whole one for integers, kept within `least` and `most`.
  QString print(double number) const;
};

/// The value for the eye, its numbers shortened; of a long array only the beginning.
ORVUI_EXPORT QString shortText(const orvlib::Value& value);

/// Of the ports of that kind and metadata: the keys "min" and "max" bound what may be entered.
ORVUI_EXPORT NumberFormat formatOf(const orvlib::PortObject& port, int decimals);

/// The number of a metadata key with one finite number.
std::optional<double> metadataNumber(const orvlib::PortObject& port, const char* key);

}  // namespace orvuilib

#pragma once

#include <QStringList>
#include <span>
#include <vector>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/PortObject.h"

namespace orvuilib {

/// What a watch point has recorded, the oldest first.
struct Records {
  /// The values as text, as a user reads them.
  QStringList texts;

  /// For single numbers and vectors of at most four: a curve for each component, with a number for
  /// each record. Else empty.
  std::vector<std::vector<double>> curves;

  /// The names of several curves; empty for a single one.
  QStringList names;
};

/// Of the port's watch point; nothing when it has none.
ORVUI_EXPORT Records readRecords(const orvlib::PortObject& port);

/// What a curve of any length looks like in so many columns: the least and the most number of each,
/// of those that are finite. A column without any has more least than most.
struct CurveColumn {
  double least;
  double most;
};
ORVUI_EXPORT std::vector<CurveColumn> sampleCurve(std::span<const double> curve, int columns);

}  // namespace orvuilib

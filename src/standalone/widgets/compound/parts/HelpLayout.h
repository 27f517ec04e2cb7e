#pragma once

#include <QFontMetricsF>
#include <QSizeF>
#include <QString>
#include <vector>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// Rows of two texts below a heading.
struct HelpGroup {
  struct Row {
    QString keys;
    QString text;
  };
  QString heading;
  std::vector<Row> rows;
};

/// All that the help shows: what the mouse does, then the keys by their groups.
ORVUI_EXPORT std::vector<HelpGroup> helpGroups();

/// Where the groups of a help stand: whole, one below the other, in as many columns as have room
/// side by side, each as wide as its texts.
class ORVUI_EXPORT HelpLayout {
 public:
  struct Column {
    qreal left = 0;
    qreal keyWidth = 0;  ///< texts begin behind it
    qreal width = 0;
    std::size_t first = 0;  ///< of the groups
    std::size_t count = 0;
  };

  /// `gap` is what lies between two columns, and between keys and texts.
  HelpLayout(const std::vector<HelpGroup>& groups, const QFontMetricsF& metrics, qreal gap,
             qreal width);

  const std::vector<Column>& columns() const { return columns_; }

  /// How many lines the longest column has, with a free one above each further heading.
  std::size_t lines() const { return lines_; }

  /// The lines of groups of that many rows each, one below the other.
  static std::size_t linesOf(const std::vector<HelpGroup>& groups, std::size_t first,
                             std::size_t count);

 private:
  bool arrange(const std::vector<HelpGroup>& groups, std::size_t most, qreal width);

  struct Widths {
    qreal keys = 0;
    qreal texts = 0;
  };
  std::vector<Widths> widths_;  ///< of the groups
  qreal gap_;
  std::vector<Column> columns_;
  std::size_t lines_ = 0;
};

}  // namespace orvuilib

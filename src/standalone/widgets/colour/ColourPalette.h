#pragma once

#include <QJsonArray>
#include <QWidget>
#include <vector>

#include "platform/orvUI_1_0/HIGColor.h"
#include "platform/orvUI_1_0/OrvUiApi.h"

class QGridLayout;

namespace orvuilib {

/// The colours that the user keeps, and the last ones chosen. Both are preferences, shared by all
/// pickers. A click chooses a colour; a right click on one that is kept removes it.
class ORVUI_EXPORT ColourPalette : public QWidget {
  Q_OBJECT

 public:
  explicit ColourPalette(QWidget* parent = nullptr);

  static std::vector<orvUI_v1::HIGColor> kept();
  static std::vector<orvUI_v1::HIGColor> recent();

  /// Nothing happens for a colour that is kept already, and when the palette is full.
  static void keep(const orvUI_v1::HIGColor& colour);

  /// By its position; nothing happens past the end.
  static void drop(std::size_t index);

  /// The colour becomes the first of the recent ones.
  static void noteChosen(const orvUI_v1::HIGColor& colour);

 signals:
  void chosen(const orvUI_v1::HIGColor& colour);

 private:
  void rebuild();
  void addRow(QGridLayout& grid, int row, const std::vector<orvUI_v1::HIGColor>& colours,
              bool removable);
};

}  // namespace orvuilib

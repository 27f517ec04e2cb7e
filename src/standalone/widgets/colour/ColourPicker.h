#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "platform/orvUI_1_0/HIGColor.h"
#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/colour/Hsv.h"

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QToolButton;

namespace orvuilib {

class ColourField;
class ColourSlider;
class ColourSwatch;

/// Mixes a colour in the mixing space: by hue, saturation and value, by sliders and numbers, from
/// the palette, from the screen, by its code. It shows colours through the view and follows the
/// colour management.
class ORVUI_EXPORT ColourPicker : public QWidget {
  Q_OBJECT

 public:
  explicit ColourPicker(QWidget* parent = nullptr);

  /// In the rendering space, as `changed` gives it.
  const orvUI_v1::HIGColor& colour() const { return colour_; }
  void setColour(const orvUI_v1::HIGColor& colour);

  /// For a colour that has no alpha there is no slider for it, and what is chosen is opaque.
  void setAlphaShown(bool shown);

 signals:
  /// On its way, as while a slider moves.
  void changing(const orvUI_v1::HIGColor& colour);

  /// The user has made a choice, one of perhaps several.
  void changed(const orvUI_v1::HIGColor& colour);

 private:
  /// A component: which one, its label, its slider and its number.
  struct Row {
    int component;
    QLabel* label;
    ColourSlider* slider;
    QDoubleSpinBox* number;
  };

  void buildSpaces(QGridLayout& grid);
  void buildRows(QGridLayout& grid, int firstRow);
  void buildTools(QGridLayout& grid, int row);
  QToolButton* makeShapeButton();
  Row makeRow(int component);

  void showColour(const orvUI_v1::HIGColor& colour);
  void showRow(const Row& row);
  void showRows();
  void slide(int index, float position);
  void showSpaces();
  void mix(const orvUI_v1::HIGColor& mixing);
  void finish();
  void choose(const orvUI_v1::HIGColor& colour);
  void followManagement();
  void pickFromScreen();
  void takeCode();
  void chooseSpace(const QString& name);
  void chooseView(const QString& name);
  void noteChoice(const QString& name, bool taken);
  void tell(const QString& text);

  /// A component of the colour in the mixing space, by its row: three of red, green and blue, three
  /// of hue, saturation and value, alpha.
  float component(int index) const;
  orvUI_v1::HIGColor withComponent(int index, float value) const;
  float rangeOf(int index) const;
  float brightest() const;

  orvUI_v1::HIGColor colour_;
  orvUI_v1::HIGColor mixing_;
  Hsv hsv_;
  bool hasAlpha_ = true;
  std::optional<float> heldRange_;  ///< of the sliders, while one of them is on its way
  bool showing_ = false;            ///< what the widgets say now comes from here

  ColourField* field_;
  std::vector<Row> rows_;
  ColourSwatch* before_;
  ColourSwatch* now_;
  QLineEdit* code_;
  QToolButton* dropper_;
  QComboBox* space_;
  QComboBox* view_;
  QCheckBox* managed_;
  QLabel* note_;
};

}  // namespace orvuilib

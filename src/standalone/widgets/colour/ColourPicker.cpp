#include "standalone/widgets/colour/ColourPicker.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QToolButton>
#include <algorithm>
#include <cmath>
#include <cstring>

#include "standalone/widgets/colour/ColourField.h"
#include "standalone/widgets/colour/ColourPalette.h"
#include "standalone/widgets/colour/ColourRegistry.h"
#include "standalone/widgets/colour/ColourSlider.h"
#include "standalone/widgets/colour/ColourSwatch.h"
#include "standalone/widgets/colour/ManagedColour.h"
#include "standalone/widgets/preferences/Preferences.h"

namespace orvuilib {
namespace {

using orvUI_v1::HIGColor;

const QString kSection = QStringLiteral("colorPicker");
const QString kSquare = QStringLiteral("square");

constexpr const char* kLabels[] = {"R", "G", "B", "H", "S", "V", "A"};
constexpr const char* kTips[] = {"Red", "Green", "Blue", "Hue", "Saturation", "Value", "Alpha"};
enum Component { kRed, kGreen, kBlue, kHue, kSaturation, kValue, kAlpha, kComponents };

bool hasUnitRange(int component) {
  return component == kHue || component == kSaturation || component == kAlpha;
}

}  // namespace

ColourPicker::ColourPicker(QWidget* parent)
    : QWidget(parent),
      field_(new ColourField),
      before_(new ColourSwatch),
      now_(new ColourSwatch),
      code_(new QLineEdit),
      dropper_(new QToolButton),
      space_(new QComboBox),
      view_(new QComboBox),
      managed_(new QCheckBox(tr("Colour management"))),
      note_(new QLabel) {
  ColourRegistry::instance().takeUpPreferences();
  auto* grid = new QGridLayout(this);
  grid->setColumnStretch(1, 1);
  grid->addWidget(field_, 0, 0, 1, 3);
  buildRows(*grid, 1);
  buildTools(*grid, 1 + kComponents);
  buildSpaces(*grid);
  connect(field_, &ColourField::moved, this,
          [this](const Hsv& hsv) { hsv_ = hsv, mix(fromHsv(hsv, mixing_.a)); });
  connect(field_, &ColourField::finished, this, &ColourPicker::finish);
  connect(&ColourRegistry::instance(), &ColourRegistry::changed, this,
          &ColourPicker::followManagement);
  setColour(colour_);
}

ColourPicker::Row ColourPicker::makeRow(int index) {
  auto* slider = new ColourSlider;
  auto* number = new QDoubleSpinBox;
  number->setDecimals(4);
  number->setSingleStep(0.01);
  number->setRange(hasUnitRange(index) ? 0.0 : -1e6, hasUnitRange(index) ? 1.0 : 1e6);
  number->setKeyboardTracking(false);
  number->setToolTip(tr(kTips[index]));
  slider->setToolTip(tr(kTips[index]));
  connect(slider, &ColourSlider::moved, this,
          [this, index](float position) { slide(index, position); });
  connect(slider, &ColourSlider::finished, this, &ColourPicker::finish);
  connect(number, &QDoubleSpinBox::valueChanged, this, [this, index](double value) {
    if (showing_) return;
    mix(withComponent(index, static_cast<float>(value)));
    finish();
  });
  return {index, new QLabel(QString::fromLatin1(kLabels[index])), slider, number};
}

void ColourPicker::buildRows(QGridLayout& grid, int firstRow) {
  for (int index = 0; index < kComponents; ++index) {
    rows_.push_back(makeRow(index));
    grid.addWidget(rows_.back().label, firstRow + index, 0);
    grid.addWidget(rows_.back().slider, firstRow + index, 1);
    grid.addWidget(rows_.back().number, firstRow + index, 2);
  }
}

void ColourPicker::buildTools(QGridLayout& grid, int row) {
  auto* line = new QHBoxLayout;
  code_->setObjectName(QStringLiteral("colourCode"));
  dropper_->setObjectName(QStringLiteral("eyeDropper"));
  before_->setToolTip(tr("The colour before; click to go back to it"));
  now_->setToolTip(tr("The colour now; click to keep it in the palette"));
  code_->setToolTip(tr("The colour on the screen, as #rrggbb"));
  code_->setMaximumWidth(code_->fontMetrics().horizontalAdvance(QStringLiteral("#00000000")) + 16);
  dropper_->setText(tr("Pick"));
  dropper_->setToolTip(tr("Pick a colour from the screen"));
  line->addWidget(before_, 1);
  line->addWidget(now_, 1);
  line->addWidget(code_);
  line->addWidget(makeShapeButton());
  line->addWidget(dropper_);
  grid.addLayout(line, row, 0, 1, 3);
  auto* palette = new ColourPalette;
  grid.addWidget(palette, row + 1, 0, 1, 3);
  connect(palette, &ColourPalette::chosen, this, &ColourPicker::choose);
  connect(before_, &ColourSwatch::clicked, this, [this] { choose(before_->colour()); });
  connect(now_, &ColourSwatch::clicked, this, [this] { ColourPalette::keep(colour_); });
  connect(code_, &QLineEdit::editingFinished, this, &ColourPicker::takeCode);
  connect(dropper_, &QToolButton::clicked, this, &ColourPicker::pickFromScreen);
}

/// The shape is a preference.
QToolButton* ColourPicker::makeShapeButton() {
  auto* button = new QToolButton;
  button->setText(tr("Square"));
  button->setToolTip(tr("A strip of hues in place of the wheel"));
  button->setCheckable(true);
  button->setObjectName(QStringLiteral("shape"));
  const auto showShape = [this](bool square) {
    field_->setShape(square ? ColourField::kSquare : ColourField::kWheel);
  };
  connect(button, &QToolButton::toggled, this, showShape);
  button->setChecked(Preferences::instance().section(kSection).value(kSquare).toBool());
  connect(button, &QToolButton::clicked, this, [](bool square) {
    QJsonObject section = Preferences::instance().section(kSection);
    section.remove(kSquare);
    if (square) section.insert(kSquare, true);
    Preferences::instance().setSection(kSection, section);
  });
  return button;
}

void ColourPicker::setColour(const HIGColor& colour) {
  tell({});
  before_->setColour(colour);
  showColour(colour);
  showSpaces();
}

void ColourPicker::setAlphaShown(bool shown) {
  hasAlpha_ = shown;
  const Row& alpha = rows_[kAlpha];
  for (QWidget* part : {static_cast<QWidget*>(alpha.label), static_cast<QWidget*>(alpha.slider),
                        static_cast<QWidget*>(alpha.number)}) {
    part->setVisible(shown);
  }
  showColour(colour_);
}

void ColourPicker::showColour(const HIGColor& colour) {
  heldRange_.reset();
  colour_ = colour;
  if (!hasAlpha_) colour_.a = 1;
  mixing_ = toMixing(colour_);
  hsv_ = toHsv(mixing_, hsv_);
  mix(mixing_);
}

float ColourPicker::component(int index) const {
  const float components[] = {mixing_.r, mixing_.g, mixing_.b, hsv_.h, hsv_.s, hsv_.v, mixing_.a};
  return components[index];
}

HIGColor ColourPicker::withComponent(int index, float value) const {
  HIGColor colour = mixing_;
  Hsv hsv = hsv_;
  float* const components[] = {&colour.r, &colour.g, &colour.b, &hsv.h, &hsv.s, &hsv.v, &colour.a};
  *components[index] = value;
  const bool ofHsv = index >= kHue && index <= kValue;
  return ofHsv ? fromHsv(hsv, colour.a) : colour;
}

/// A colour brighter than white stays on its sliders.
float ColourPicker::brightest() const {
  const float largest = std::max({1.0f, mixing_.r, mixing_.g, mixing_.b});
  return std::isfinite(largest) ? largest : 1.0f;
}

float ColourPicker::rangeOf(int index) const {
  return hasUnitRange(index) ? 1.0f : heldRange_.value_or(brightest());
}

/// The range is held to the end of the way: the colour that is on its way would shorten it, and one
/// place on the slider would mean less each time.
void ColourPicker::slide(int index, float position) {
  heldRange_ = heldRange_.value_or(brightest());
  mix(withComponent(index,
                    hasUnitRange(index) ? position : fromSliderPosition(position, *heldRange_)));
}

void ColourPicker::showRow(const Row& row) {
  const int index = row.component;
  const float range = rangeOf(index);
  const float value = component(index);
  const bool unit = hasUnitRange(index);
  row.slider->setPosition(unit ? value : toSliderPosition(value, range));
  row.slider->setColours([this, index, range, unit](float position) {
    HIGColor colour = withComponent(index, unit ? position : fromSliderPosition(position, range));
    return fromMixing(colour);
  });
  row.number->setValue(std::isnan(value) ? 0.0 : static_cast<double>(value));
}

void ColourPicker::showRows() {
  const QScopedValueRollback guard(showing_, true);
  for (const Row& row : rows_) showRow(row);
}

/// A hue that the user moves stays, also where the colour has none.
void ColourPicker::mix(const HIGColor& mixing) {
  // Bit for bit: what is no number does not equal itself.
  const bool moved = std::memcmp(&mixing, &mixing_, sizeof mixing) != 0;
  mixing_ = mixing;
  hsv_ = toHsv(mixing_, hsv_);
  if (moved) colour_ = fromMixing(mixing);
  field_->setHsv(hsv_);
  showRows();
  now_->setColour(colour_);
  const QColor screen = toScreen(colour_);
  code_->setText(screen.name(screen.alpha() < 255 ? QColor::HexArgb : QColor::HexRgb));
  if (moved) emit changing(colour_);
}

void ColourPicker::finish() {
  heldRange_.reset();
  showRows();
  emit changed(colour_);
}

void ColourPicker::choose(const HIGColor& colour) {
  showColour(colour);
  emit changing(colour_);
  finish();
}

void ColourPicker::followManagement() {
  showColour(colour_);
  showSpaces();
}

/// A cancelled pick may leave anything behind.
void ColourPicker::pickFromScreen() {
  const auto pick = ColourRegistry::instance().eyeDropper();
  HIGColor picked;
  if (pick && pick(&picked)) choose({picked.r, picked.g, picked.b, colour_.a});
}

void ColourPicker::takeCode() {
  const QColor screen(code_->text().trimmed());
  if (!code_->isModified()) return;
  if (screen.isValid()) return choose(fromScreen(screen));
  showColour(colour_);
}

}  // namespace orvuilib

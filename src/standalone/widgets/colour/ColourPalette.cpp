#include "standalone/widgets/colour/ColourPalette.h"

#include <QAction>
#include <QGridLayout>
#include <algorithm>

#include "standalone/widgets/colour/ColourSwatch.h"
#include "standalone/widgets/preferences/Preferences.h"

namespace orvuilib {
namespace {

using orvUI_v1::HIGColor;

const QString kSection = QStringLiteral("colorPicker");
const QString kKept = QStringLiteral("palette");
const QString kRecent = QStringLiteral("recent");

constexpr std::size_t kColumns = 12;
constexpr std::size_t kMostKept = 4 * kColumns;

using Colours = std::vector<HIGColor>;

/// What is no colour is passed over.
Colours read(const QString& key) {
  Colours colours;
  for (const QJsonValue& value : Preferences::instance().section(kSection).value(key).toArray()) {
    const QJsonArray parts = value.toArray();
    if (parts.size() != 4) continue;
    const auto part = [&parts](int i) { return static_cast<float>(parts[i].toDouble()); };
    colours.push_back({part(0), part(1), part(2), part(3)});
  }
  return colours;
}

void write(const QString& key, const Colours& colours) {
  QJsonArray values;
  for (const HIGColor& colour : colours) {
    values.append(QJsonArray{colour.r, colour.g, colour.b, colour.a});
  }
  QJsonObject section = Preferences::instance().section(kSection);
  section.insert(key, values);
  if (values.isEmpty()) section.remove(key);
  Preferences::instance().setSection(kSection, section);
}

}  // namespace

ColourPalette::ColourPalette(QWidget* parent) : QWidget(parent) {
  connect(&Preferences::instance(), &Preferences::changed, this, &ColourPalette::rebuild,
          Qt::QueuedConnection);
  rebuild();
}

Colours ColourPalette::kept() { return read(kKept); }

Colours ColourPalette::recent() { return read(kRecent); }

void ColourPalette::keep(const HIGColor& colour) {
  Colours colours = kept();
  if (colours.size() >= kMostKept || std::ranges::count(colours, colour) > 0) return;
  colours.push_back(colour);
  write(kKept, colours);
}

void ColourPalette::drop(std::size_t index) {
  Colours colours = kept();
  if (index >= colours.size()) return;
  colours.erase(colours.begin() + static_cast<std::ptrdiff_t>(index));
  write(kKept, colours);
}

void ColourPalette::noteChosen(const HIGColor& colour) {
  Colours colours = recent();
  std::erase(colours, colour);
  colours.insert(colours.begin(), colour);
  if (colours.size() > kColumns) colours.resize(kColumns);
  write(kRecent, colours);
}

void ColourPalette::addRow(QGridLayout& grid, int row, const Colours& colours, bool removable) {
  for (std::size_t i = 0; i < colours.size(); ++i) {
    auto* swatch = new ColourSwatch;
    swatch->setColour(colours[i]);
    swatch->setFixedHeight(fontMetrics().height() + 2);
    swatch->setToolTip(removable ? tr("Click to choose, right click to remove")
                                 : tr("Chosen before"));
    connect(swatch, &ColourSwatch::clicked, this,
            [this, colour = colours[i]] { emit chosen(colour); });
    if (removable) {
      auto* remove = new QAction(tr("Remove"), swatch);
      connect(remove, &QAction::triggered, this, [i] { drop(i); });
      swatch->addAction(remove);
      swatch->setContextMenuPolicy(Qt::ActionsContextMenu);
    }
    grid.addWidget(swatch, row + static_cast<int>(i / kColumns), static_cast<int>(i % kColumns));
  }
}

void ColourPalette::rebuild() {
  qDeleteAll(findChildren<ColourSwatch*>(Qt::FindDirectChildrenOnly));
  delete layout();
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(2);
  for (int column = 0; column < static_cast<int>(kColumns); ++column) {
    grid->setColumnStretch(column, 1);
  }
  addRow(*grid, 0, kept(), true);
  addRow(*grid, static_cast<int>(kMostKept / kColumns), recent(), false);
}

}  // namespace orvuilib

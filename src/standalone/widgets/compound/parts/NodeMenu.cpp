#include "standalone/widgets/compound/parts/NodeMenu.h"

namespace orvuilib {

NodeMenu::NodeMenu(const Theme& theme, QWidget* parent)
    : SearchList(theme, QStringLiteral("Add a node"), parent) {
  setObjectName(QStringLiteral("nodeMenu"));
}

void NodeMenu::offer(const orvlib::GraphCore& core, const edits::NodePlace& place,
                     const QPoint& point) {
  // The definitions may have been read anew since the menu was last open.
  shown_.clear();
  entries_ = catalogueFor(core);
  position_ = place.position;
  connectTo_ = orvlib::PortRef(place.connectTo);
  const QString type =
      connectTo_ ? QString::fromStdString(connectTo_->valueType().name) : QString();
  setHint(type.isEmpty() ? QString() : QStringLiteral("What connects to %1").arg(type));
  openAt(point);
}

std::vector<SearchLine> NodeMenu::search(const QString& typed) {
  shown_ = chooseFrom(entries_, typed, connectTo_.get());
  std::vector<SearchLine> lines;
  for (const CatalogueEntry* entry : shown_) {
    lines.push_back({entry->title, entry->place, entry->description});
  }
  return lines;
}

void NodeMenu::chosen(int index) {
  const edits::NewNode what = shown_[static_cast<std::size_t>(index)]->what;
  emit picked(what);
}

}  // namespace orvuilib

#include "standalone/widgets/compound/parts/NodeMenu.h"

#include "standalone/widgets/compound/parts/FuzzyMatch.h"

namespace orvuilib {

namespace {

QString hintFor(const edits::NodePlace& place) {
  const auto typeOf = [](const orvlib::PortObject& port) {
    return QString::fromStdString(port.valueType().name);
  };
  if (!place.connectTo) return {};
  if (!place.wireTo) return QStringLiteral("What connects to %1").arg(typeOf(*place.connectTo));
  return QStringLiteral("What fits between %1 and %2")
      .arg(typeOf(*place.connectTo), typeOf(*place.wireTo));
}

std::vector<orvlib::PortObject*> portsOf(const edits::NodePlace& place) {
  std::vector<orvlib::PortObject*> ports;
  for (orvlib::PortObject* port : {place.connectTo, place.wireTo}) {
    if (port) ports.push_back(port);
  }
  return ports;
}

}  // namespace

NodeMenu::NodeMenu(const Theme& theme, QWidget* parent)
    : SearchList(theme, QStringLiteral("Add a node"), parent), theme_(theme) {
  setObjectName(QStringLiteral("nodeMenu"));
}

void NodeMenu::offer(const orvlib::GraphCore& core, const edits::NodePlace& place, Place at,
                     const std::vector<Action>& actions) {
  // The definitions may have been read anew since the menu was last open.
  shown_.clear();
  entries_ = catalogueFor(core);
  actions_ = actions;
  position_ = place.position;
  connectTo_ = orvlib::PortRef(place.connectTo);
  wireTo_ = orvlib::PortRef(place.wireTo);
  hint_ = hintFor(place);
  openAt(std::move(at));
}

std::vector<SearchLine> NodeMenu::search(const QString& typed) {
  shown_ = chooseFrom(entries_, typed, portsOf(place()));
  std::vector<SearchLine> nodes;
  for (const CatalogueEntry* entry : shown_) {
    nodes.push_back({entry->title, entry->place, entry->description,
                     theme_.titleColour(entry->colouredAs()).lighter(150)});
  }
  std::vector<SearchLine> actions;
  shownActions_.clear();
  for (const Action action : actions_) {
    const QString text = textOf(action);
    if (fuzzyScore(typed, text) == 0) continue;
    shownActions_.push_back(action);
    actions.push_back({text, keyTextOf(action), {}});
  }
  setHint(nodes.empty() && actions.empty() ? QStringLiteral("Nothing fits") : hint_);
  firstAction_ = typed.isEmpty() ? 0 : static_cast<int>(nodes.size());
  nodes.insert(nodes.begin() + firstAction_, actions.begin(), actions.end());
  return nodes;
}

void NodeMenu::chosen(int index) {
  const int actions = static_cast<int>(shownActions_.size());
  if (index >= firstAction_ && index < firstAction_ + actions) {
    emit actionPicked(shownActions_[static_cast<std::size_t>(index - firstAction_)]);
    return;
  }
  const int line = index < firstAction_ ? index : index - actions;
  const edits::NewNode what = shown_[static_cast<std::size_t>(line)]->what;
  emit picked(what);
}

}  // namespace orvuilib

#include "standalone/widgets/compound/parts/FindList.h"

namespace orvuilib {
namespace {

constexpr std::size_t kMost = 500;

}  // namespace

FindList::FindList(const Theme& theme, QWidget* parent)
    : SearchList(theme, QStringLiteral("Find a name, type or value"), parent) {
  setObjectName(QStringLiteral("findList"));
}

void FindList::openFor(orvlib::NodeObject& level, const QPoint& point) {
  level_ = orvlib::NodeRef(&level);
  openAt(point);
}

void FindList::forget() {
  level_ = {};
  found_.clear();
  hide();
}

std::vector<SearchLine> FindList::search(const QString& typed) {
  found_.clear();
  if (level_ && level_->compound()) found_ = findInGraph(*level_->compound(), typed, kMost);
  std::vector<SearchLine> lines;
  for (const Found& each : found_) {
    const QString path = QString::fromStdString(each.node->fullPath());
    lines.push_back({path, each.reason, path});
  }
  setHint(typed.isEmpty() ? QStringLiteral("name: type: value: narrow the search")
                          : QStringLiteral("%1 found").arg(lines.size()));
  return lines;
}

void FindList::chosen(int index) {
  // The lines stay when what was found is forgotten.
  if (static_cast<std::size_t>(index) >= found_.size()) return;
  // Whoever hears of it may look for something else.
  const orvlib::NodeRef node = found_[static_cast<std::size_t>(index)].node;
  emit found(node.get());
}

}  // namespace orvuilib

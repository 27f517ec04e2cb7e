#include "standalone/widgets/compound/parts/FindList.h"

#include <algorithm>

namespace orvuilib {
namespace {

constexpr std::size_t kMost = 500;

}  // namespace

FindList::FindList(const Theme& theme, QWidget* parent)
    : SearchList(theme, QStringLiteral("Find a name, type or value"), parent), theme_(theme) {
  setObjectName(QStringLiteral("findList"));
}

void FindList::openFor(orvlib::NodeObject& level, Place place) {
  level_ = orvlib::NodeRef(&level);
  openAt(std::move(place));
}

void FindList::forget() {
  level_ = {};
  field().clear();
  refresh();
  hide();
}

std::vector<SearchLine> FindList::search(const QString& typed) {
  stale_ = false;
  found_.clear();
  if (level_ && level_->compound()) found_ = findInGraph(*level_->compound(), typed, kMost);
  std::vector<SearchLine> lines;
  for (const Found& each : found_) {
    const QString path = QString::fromStdString(each.node->fullPath());
    lines.push_back(
        {path, each.reason, path, theme_.titleColour(each.node->typeName()).lighter(150)});
  }
  setHint(typed.isEmpty() ? QStringLiteral("name: type: value: narrow the search")
          : lines.empty() ? QStringLiteral("Nothing found")
                          : QStringLiteral("%1 found").arg(lines.size()));
  return lines;
}

int FindList::lineOf(const orvlib::NodeObject* node) const {
  const auto at =
      std::ranges::find(found_, node, [](const Found& each) { return each.node.get(); });
  return at == found_.end() ? -1 : static_cast<int>(at - found_.begin());
}

/// What was current stays so as far as it is still found.
void FindList::searchAnew() {
  const auto current = static_cast<std::size_t>(std::max(currentLine(), 0));
  const orvlib::NodeRef node = current < found_.size() ? found_[current].node : orvlib::NodeRef();
  refresh();
  const int line = lineOf(node.get());
  setCurrentLine(line >= 0 ? line : std::min(static_cast<int>(current), lineCount() - 1));
}

void FindList::chooseNext() {
  if (stale_) searchAnew();
  SearchList::chooseNext();
}

void FindList::chosen(int index) {
  // Whoever hears of it may look for something else.
  const orvlib::NodeRef node = found_[static_cast<std::size_t>(index)].node;
  if (stale_) {
    searchAnew();
    if (lineOf(node.get()) < 0) return;
  }
  emit found(node.get());
}

}  // namespace orvuilib

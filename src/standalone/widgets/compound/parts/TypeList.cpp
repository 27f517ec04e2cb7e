#include "standalone/widgets/compound/parts/TypeList.h"

#include <algorithm>

#include "platform/ORV_1_0/Host.h"
#include "platform/ORV_1_0/QtConversions.h"
#include "standalone/widgets/compound/parts/FuzzyMatch.h"

namespace orvuilib {

TypeList::TypeList(const Theme& theme, QWidget* parent)
    : SearchList(theme, QStringLiteral("Type"), parent), theme_(theme) {
  setObjectName(QStringLiteral("typeList"));
}

void TypeList::offer(const orvlib::GraphCore& core, const QString& prompt, const QString& usual,
                     Place at, Done done) {
  types_.clear();
  const ORV_v1::Host host;
  const auto* runtime = host.getRuntimeByName(core.runtime().c_str());
  for (unsigned int i = 0; runtime && i < runtime->getNumberOfPortTypes(); ++i) {
    const auto type = runtime->getPortTypeAt(i);
    types_.push_back({ORV_v1::toQString(type->getName()), ORV_v1::toQString(type->getNiceName())});
  }
  done_ = std::move(done);
  setPrompt(prompt);
  openAt(std::move(at));
  setCurrentLine(static_cast<int>(std::ranges::find(shown_, usual) - shown_.begin()));
}

/// The best first, and else in the order of the runtime.
std::vector<SearchLine> TypeList::search(const QString& typed) {
  std::vector<std::pair<int, const Type*>> fitting;
  for (const Type& type : types_) {
    const int score = std::max(fuzzyScore(typed, type.name), fuzzyScore(typed, type.title));
    if (score > 0) fitting.emplace_back(score, &type);
  }
  std::ranges::stable_sort(fitting, std::greater(), &std::pair<int, const Type*>::first);
  shown_.clear();
  std::vector<SearchLine> lines;
  for (const auto& [score, type] : fitting) {
    shown_.push_back(type->name);
    lines.push_back({type->name, type->title, {}, theme_.typeColour(type->name.toStdString())});
  }
  setHint(lines.empty() ? QStringLiteral("No such type") : QString());
  return lines;
}

void TypeList::chosen(int index) {
  const QString type = shown_[static_cast<std::size_t>(index)];
  if (const Done done = std::exchange(done_, nullptr)) done(type);
}

}  // namespace orvuilib

#include "standalone/graph/commands/BroughtTypes.h"

#include <algorithm>

namespace orvlib {
namespace {

using ORV_v1::GraphAccess;
using Vocabulary = GraphCore::Vocabulary;

template <class Change>
void changeVocabulary(GraphCore& core, Change change) {
  Vocabulary vocabulary;
  core.exchangeVocabulary(vocabulary);
  change(vocabulary);
  core.exchangeVocabulary(vocabulary);
}

}  // namespace

bool BroughtTypes::has(const TypeRef& type) const {
  return std::ranges::any_of(types_, [&](const TypeRef& own) { return own.get() == type.get(); });
}

bool BroughtTypes::read(std::string_view text, GraphCore& core, Selection& selection) {
  Vocabulary trial{core.runtime()};
  changeVocabulary(core, [&](Vocabulary& own) { trial.standIns = own.standIns; });
  const auto former = trial.standIns;
  core.exchangeVocabulary(trial);
  const bool done = !readSelection(text, core, selection);
  core.exchangeVocabulary(trial);
  types_.clear();
  for (const auto& [name, type] : trial.standIns) {
    if (!former.contains(name)) types_.push_back(type);
  }
  return done;
}

void BroughtTypes::enter(GraphCore& core) const {
  if (types_.empty()) return;
  changeVocabulary(core, [&](Vocabulary& vocabulary) {
    for (const TypeRef& type : types_) {
      vocabulary.standIns.try_emplace(GraphAccess::typeOf(*type)->name, type);
    }
  });
}

void BroughtTypes::leave(GraphCore& core) const {
  if (types_.empty()) return;
  changeVocabulary(core, [&](Vocabulary& vocabulary) {
    std::erase_if(vocabulary.standIns, [&](const auto& entry) { return has(entry.second); });
    // What was looked up meanwhile would keep them.
    for (TypeRef& type : vocabulary.scalarTypes) {
      if (has(type)) type = TypeRef();
    }
    absl::erase_if(vocabulary.known, [&](const auto& entry) {
      return std::ranges::any_of(entry.second.portTypes,
                                 [&](const TypeRef& type) { return has(type); });
    });
  });
}

}  // namespace orvlib

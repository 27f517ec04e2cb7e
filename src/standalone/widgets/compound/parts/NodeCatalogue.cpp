#include "standalone/widgets/compound/parts/NodeCatalogue.h"

#include <algorithm>
#include <tuple>

#include "platform/ORV_1_0/Host.h"
#include "platform/ORV_1_0/QtConversions.h"
#include "standalone/graph/api/GraphAccess.h"
#include "standalone/graph/model/GraphCore.h"
#include "standalone/widgets/compound/edits/WireEdits.h"
#include "standalone/widgets/compound/parts/FuzzyMatch.h"

namespace orvuilib {

using edits::NewNode;
using ORV_v1::toQString;

namespace {

using LibraryHandle = ORV_v1::AddRefWrapper<ORV_v1::NodeLibrary>;

CatalogueEntry entryFor(const LibraryHandle& library,
                        const ORV_v1::AddRefWrapper<ORV_v1::NodeDefinition>& definition) {
  const orvlib::NodeDescription& description = ORV_v1::GraphAccess::describe(*definition);
  return {{NewNode::Kind::Definition, toQString(definition->getName())},
          toQString(definition->getNiceName()),
          toQString(library->getName()),
          QString::fromStdString(description.description),
          &description,
          definition};
}

void addLibrary(const LibraryHandle& library, std::vector<CatalogueEntry>& entries) {
  if (!library) return;
  for (unsigned int i = 0; i < library->getNumberOfNodes(); ++i) {
    entries.push_back(entryFor(library, library->getNodeAt(i)));
  }
  for (unsigned int i = 0; i < library->getNumberOfSubLibraries(); ++i) {
    addLibrary(library->getSubLibraryAt(i), entries);
  }
}

void addBuiltIns(std::vector<CatalogueEntry>& entries) {
  const auto add = [&entries](NewNode::Kind kind, const char* title, const char* description) {
    entries.push_back({{kind, {}},
                       QString::fromLatin1(title),
                       QStringLiteral("graph"),
                       QString::fromLatin1(description),
                       nullptr,
                       {}});
  };
  using Kind = NewNode::Kind;
  add(Kind::Compound, "Compound", "An empty compound, with a level of its own.");
  add(Kind::Input, "Input node", "Shows inputs of the compound, where they are needed.");
  add(Kind::Output, "Output node", "Shows outputs of the compound, where they are made.");
  add(Kind::Backdrop, "Backdrop", "A frame behind nodes that belong together.");
  add(Kind::StickyNote, "Sticky note", "A text.");
}

/// Titles count for more than types, and types for more than descriptions.
int scoreOf(const CatalogueEntry& entry, const QString& typed) {
  const int title = fuzzyScore(typed, entry.title);
  const int type = fuzzyScore(typed, entry.what.type);
  return std::max(title > 0 ? title + 40 : 0, type);
}

bool suits(const CatalogueEntry& entry, const std::vector<orvlib::PortObject*>& ports) {
  return std::ranges::all_of(ports, [&entry](orvlib::PortObject* port) {
    return entry.definition && edits::fitsDefinition(*port, *entry.definition);
  });
}

}  // namespace

std::vector<CatalogueEntry> catalogueFor(const orvlib::GraphCore& core) {
  std::vector<CatalogueEntry> entries;
  const ORV_v1::Host host;
  if (const auto* runtime = host.getRuntimeByName(core.runtime().c_str())) {
    addLibrary(runtime->getRootLibrary(), entries);
  }
  addBuiltIns(entries);
  std::ranges::sort(entries, {}, [](const CatalogueEntry& entry) {
    return std::tuple(entry.title.toCaseFolded(), entry.place, entry.what.type);
  });
  return entries;
}

std::string CatalogueEntry::colouredAs() const {
  switch (what.kind) {
    case NewNode::Kind::Compound:
      return "compound";
    case NewNode::Kind::Input:
      return "input";
    case NewNode::Kind::Output:
      return "output";
    default:
      return what.type.toStdString();
  }
}

std::vector<const CatalogueEntry*> chooseFrom(const std::vector<CatalogueEntry>& entries,
                                              const QString& typed,
                                              const std::vector<orvlib::PortObject*>& ports) {
  struct Scored {
    const CatalogueEntry* entry;
    int score;
  };
  std::vector<Scored> fitting;
  for (const CatalogueEntry& entry : entries) {
    const int score = suits(entry, ports) ? scoreOf(entry, typed) : 0;
    if (score > 0) fitting.push_back({&entry, score});
  }
  if (!typed.isEmpty()) std::ranges::stable_sort(fitting, std::greater(), &Scored::score);
  std::vector<const CatalogueEntry*> chosen;
  for (const Scored& each : fitting) chosen.push_back(each.entry);
  return chosen;
}

}  // namespace orvuilib

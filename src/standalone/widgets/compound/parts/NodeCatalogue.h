#pragma once

#include <QString>
#include <vector>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/edits/NodeEdits.h"

namespace orvuilib {

/// One thing that the menu of nodes offers.
struct CatalogueEntry {
  edits::NewNode what;
  QString title;        ///< "Add"
  QString place;        ///< "core::math", or what kind of thing it is
  QString description;  ///< may be empty
  const orvlib::NodeDescription* definition = nullptr;  ///< kept by `keeper`
  ORV_v1::AddRefWrapper<ORV_v1::NodeDefinition> keeper;

  /// The type whose colour a node of it has on the canvas.
  std::string colouredAs() const;
};

/// All that can be added to a graph, by title: the definitions of its runtime, and what needs no
/// definition.
std::vector<CatalogueEntry> catalogueFor(const orvlib::GraphCore& core);

/// Those that fit what was typed, the best first; with ports, only those that could be connected to
/// each of them. `entries` outlives the result.
ORVUI_EXPORT std::vector<const CatalogueEntry*> chooseFrom(
    const std::vector<CatalogueEntry>& entries, const QString& typed,
    const std::vector<orvlib::PortObject*>& ports);

}  // namespace orvuilib

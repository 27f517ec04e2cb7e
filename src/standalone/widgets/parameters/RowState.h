#pragma once

#include <QStringList>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/types/Value.h"
#include "standalone/widgets/parameters/ParameterRow.h"

namespace orvuilib {

/// What a row shows.
struct ORVUI_EXPORT RowState {
  /// One text a component, of the first port; none for an array, which may be long.
  QStringList texts;

  /// How many elements the longest of the arrays has.
  std::size_t elements = 0;

  /// Per component whether the ports differ in it; for an array a single entry.
  std::vector<bool> mixed;

  /// Per component what gives its value in its stead; null where nothing does.
  std::vector<orvlib::PortRef> componentSources;

  /// Whether a port has another value than its default.
  bool own = false;

  /// How many of the ports get their value from elsewhere, and from where; each source once.
  std::size_t connected = 0;
  std::vector<orvlib::PortRef> sources;

  /// Whether a port can be edited: there is a hook, and the port is connected to nothing, in a
  /// graph and in no locked level.
  bool editable = false;

  bool isConnected(const ParameterRow& row) const { return connected == row.ports.size(); }
  bool isMixed(std::size_t component) const {
    return component < mixed.size() ? mixed[component] : false;
  }
  bool anyMixed() const;
};

ORVUI_EXPORT RowState readState(const ParameterRow& row);

/// How many elements the port's own array has.
ORVUI_EXPORT std::size_t elementCount(const orvlib::PortObject& array);

/// The texts of the port's own value; empty when it has none to set.
ORVUI_EXPORT QStringList valueTexts(const orvlib::PortObject& port);

}  // namespace orvuilib

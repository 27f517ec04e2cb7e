#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/PortEdits.h"
#include "standalone/widgets/parameters/RowState.h"

namespace orvuilib {

/// The edits of one row: each changes its value, or a part of it, for all ports of the row that can
/// be edited and are not connected. Those that tell how it went say whether each of these ports now
/// has what was asked for.
class ORVUI_EXPORT RowEdits {
 public:
  /// What becomes of the texts of one port; nothing leaves the port out.
  using Change = std::function<std::optional<QStringList>(const QStringList&)>;

  explicit RowEdits(ParameterRow row);

  const ParameterRow& row() const { return row_; }

  /// What is on its way is cancelled when the ports are others.
  void setRow(ParameterRow row);

  /// How it was when it was last read.
  const RowState& state() const { return state_; }
  void readAgain();

  bool change(const Change& change);
  bool reset();

  /// A value on its way, until `end` or `cancel`. It begins with the first that is shown.
  void show(const Change& change);
  bool end();
  void cancel();
  bool isLive() const { return live_ != nullptr; }

 private:
  std::vector<orvlib::PortRef> editablePorts() const;
  std::vector<PortValue> values(const Change& change) const;
  QString stepName(const char* verb) const;

  ParameterRow row_;
  RowState state_;
  std::unique_ptr<LiveEdit> live_;
};

/// The whole value of each port.
ORVUI_EXPORT RowEdits::Change toValue(const QStringList& texts);

/// The components from `first` on; each port keeps its others. An array that is shorter is left
/// out.
ORVUI_EXPORT RowEdits::Change toPart(int first, const QStringList& texts);

}  // namespace orvuilib

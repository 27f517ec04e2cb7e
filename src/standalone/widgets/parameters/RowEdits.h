#pragma once

#include <memory>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/PortEdits.h"
#include "standalone/widgets/parameters/RowState.h"

namespace orvuilib {

/// The edits of one row: each sets its value, or one component of it, for all ports of the row that
/// can be edited and are not connected.
class ORVUI_EXPORT RowEdits {
 public:
  explicit RowEdits(ParameterRow row);

  const ParameterRow& row() const { return row_; }

  /// What is on its way is cancelled when the ports are others.
  void setRow(ParameterRow row);

  /// How it was when it was last read.
  const RowState& state() const { return state_; }
  void readAgain();

  void set(const QStringList& texts);
  void setComponent(int index, const QString& text);
  void reset();

  /// A value on its way, until `end` or `cancel`. It begins with the first that is shown.
  void show(const QStringList& texts);
  void showComponent(int index, const QString& text);
  void end();
  void cancel();
  bool isLive() const { return live_ != nullptr; }

 private:
  std::vector<orvlib::PortRef> editablePorts() const;
  std::vector<PortValue> values(const QStringList& texts) const;
  std::vector<PortValue> values(int index, const QString& text) const;
  void show(const std::vector<PortValue>& values);
  QString stepName(const char* verb) const;

  ParameterRow row_;
  RowState state_;
  std::unique_ptr<LiveEdit> live_;
};

}  // namespace orvuilib

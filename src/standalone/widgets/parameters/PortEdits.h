#pragma once

#include <QStringList>
#include <optional>
#include <vector>

#include "platform/orvUI_1_0/CommandHook.h"
#include "standalone/graph/model/NodeObject.h"

namespace orvuilib {

/// The hook for edits of a graph; null when it cannot be edited.
ORVUI_EXPORT orvUI_v1::CommandHook* hookOf(const orvlib::GraphCore& core);

/// Whether the port's value can be set now. Whether it is connected is not asked.
ORVUI_EXPORT bool canEdit(const orvlib::PortObject& port);

/// Whether the level that the node stands in takes edits, and a hook makes them.
ORVUI_EXPORT bool isInOpenLevel(const orvlib::NodeObject& node);

/// Why that is not so, as a user is told; empty when it is.
ORVUI_EXPORT QString readOnlyReason(const orvlib::NodeObject& node);

/// A port and a value for it, one text a component.
struct PortValue {
  orvlib::PortRef port;
  QStringList texts;
};

/// One line of edit for each port, and one step of undo for all of them. `what` names the step.
/// Ports that cannot be edited are passed over. Whether each of the others now has what was asked
/// for.
ORVUI_EXPORT bool setPortValues(const std::vector<PortValue>& values, const QString& what);
ORVUI_EXPORT bool resetPortValues(const std::vector<orvlib::PortRef>& ports, const QString& what);

/// Values on their way, as while a slider moves: they are shown in the graph and nothing is kept to
/// undo them by. What ends it leaves either one step of undo, back to where it began, or nothing.
class ORVUI_EXPORT LiveEdit {
 public:
  explicit LiveEdit(const std::vector<orvlib::PortRef>& ports);
  LiveEdit(const LiveEdit&) = delete;
  LiveEdit& operator=(const LiveEdit&) = delete;

  /// Cancels what has not ended.
  ~LiveEdit();

  /// The values must be of ports that it was made with.
  void show(const std::vector<PortValue>& values);

  /// Makes what was shown last one step of undo, unless that is how it was before. As
  /// `setPortValues` tells.
  bool commit(const QString& what);

  /// What others did to a port meanwhile, as by undo, is what it is put back to.
  void follow();

  /// Puts back what was out of reach when its edit was cancelled, as in a node that was removed and
  /// has come back.
  static void putBackStranded();

  /// Puts back how it was.
  void cancel();

 private:
  struct Before {
    orvlib::PortRef port;
    QStringList texts;

    /// Whether the port had a value of its own, or else its default.
    bool own;
  };

  static Before read(const orvlib::PortRef& port);
  static void putBack(const std::vector<Before>& all);
  static std::vector<Before>& stranded();
  bool isAsBefore() const;

  std::vector<Before> before_;
  std::vector<PortValue> shown_;
};

}  // namespace orvuilib

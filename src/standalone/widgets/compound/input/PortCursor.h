#pragma once

#include <QPainter>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/paint/Detail.h"
#include "standalone/widgets/compound/scene/LevelScene.h"

namespace orvuilib {

/// The port or the wire that the keys are about, and the port where a wire was begun by key. What
/// the keys come to is selected as a click on it would do; when something else is selected there
/// is no current port any more.
class ORVUI_EXPORT PortCursor {
 public:
  enum class Way { Left, Right, Up, Down };

  explicit PortCursor(LevelScene& scene) : scene_(scene) {}

  /// Up and down go among the ports of one side, and among the wires of one port; left and right
  /// along wires, to the other side of a node, and where no wire leads to the nearest node. From
  /// nowhere it goes to the selected node, or to the one nearest to `from`. False when there is
  /// nothing to go to.
  bool walk(Way way, const QPointF& from);

  /// Nothing happens for a port that is not shown.
  void set(orvlib::PortObject& port);
  void clear();

  /// Lets go of what is no longer shown or no longer selected.
  void check();

  /// Null when there is none; `port` is null while a wire is current.
  orvlib::PortObject* port() const { return far_ ? nullptr : port_.get(); }
  Wire* wire() const;

  /// Where the current port or the middle of the current wire is; nothing without one.
  std::optional<QPointF> place() const;

  /// Where a wire was begun; null when none was.
  orvlib::PortObject* begun() const { return begun_.get(); }
  void beginWire() { begun_ = orvlib::PortRef(port()); }
  void dropWire() { begun_ = {}; }

  void paint(QPainter& painter, const PaintSettings& settings) const;

 private:
  bool enter(Way way, const QPointF& from);
  bool walkWires(Way way);
  bool walkPorts(Way way);
  bool stepSideways(const LevelScene::Shown& at, Way way);
  bool stepToWire(int by);
  bool goToSide(const BoxItem& box, bool left, qreal y);
  const BoxItem* nearest(const BoxItem& from, Way way) const;
  const BoxItem* nearest(const QPointF& point) const;
  std::vector<orvlib::PortObject*> farEnds() const;
  void setWire(orvlib::PortObject& farEnd);
  void select();
  bool isShown(const orvlib::PortObject& port) const;

  LevelScene& scene_;
  orvlib::PortRef port_;
  orvlib::PortRef far_;  ///< the other end, when a wire of `port_` is current
  orvlib::PortRef begun_;
  std::uint64_t round_ = 0;  ///< of the selection that goes with it
};

}  // namespace orvuilib

#pragma once

#include <QPainter>
#include <memory>

#include "standalone/widgets/compound/input/Workbench.h"

namespace orvuilib {

/// Something that goes on while a button is held. Points are of the scene. It ends with `finish` or
/// `cancel`, and changes the graph in `finish` alone. When the graph changes it is cancelled.
class Gesture {
 public:
  explicit Gesture(Workbench& bench) : bench_(bench) {}
  Gesture(const Gesture&) = delete;
  Gesture& operator=(const Gesture&) = delete;
  virtual ~Gesture() = default;

  virtual void move(const QPointF& point, Qt::KeyboardModifiers modifiers) = 0;
  virtual void finish(const QPointF& point, Qt::KeyboardModifiers modifiers) = 0;

  /// Makes everything look as before.
  virtual void cancel() = 0;
  virtual void paint(QPainter&, const PaintSettings&) {}

 protected:
  Workbench& bench_;
};

using GesturePtr = std::unique_ptr<Gesture>;

/// Moves the view with the pointer.
GesturePtr makePan(Workbench& bench, const QPointF& start);

/// Selects what a rectangle touches: alone; with Shift in addition; with Ctrl the other way round.
GesturePtr makeBand(Workbench& bench, const QPointF& start, Qt::KeyboardModifiers modifiers);

/// Moves what is selected, and with a backdrop what lies on it; or one box of the boundary. A
/// single unconnected node that is let go over a wire is put into it.
GesturePtr makeMove(Workbench& bench, const QPointF& start, BoxItem* boundary);

GesturePtr makeResize(Workbench& bench, NoteItem& note);

/// Makes a wire from the port, or takes off the one that ends there.
GesturePtr makeWiring(Workbench& bench, orvlib::PortObject& port);

/// Moves a port of the level among its like.
GesturePtr makePortMove(Workbench& bench, orvlib::PortObject& port, const QPointF& start);

}  // namespace orvuilib

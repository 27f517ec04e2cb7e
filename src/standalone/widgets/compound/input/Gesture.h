#pragma once

#include <QPainter>
#include <memory>

#include "standalone/widgets/compound/input/Workbench.h"

namespace orvuilib {

/// Something that goes on while a button is held. Points are of the scene. It ends with `finish` or
/// `cancel`, and changes the graph in `finish` alone. When the graph changes it goes on, unless
/// what it holds is taken away or put elsewhere.
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

  /// Whether it can go on after changes of the graph that the scene has not yet followed.
  virtual bool outlives(std::span<const orvlib::NodeChange>) const { return true; }

  /// The scene has followed changes that it outlives.
  virtual void graphFollowed() {}

  /// Whether it is there to edit, and ends when the level may no longer be edited.
  virtual bool edits() const { return true; }

  /// Whether the view moves on when the pointer comes to its edge.
  virtual bool scrollsAtEdge() const { return true; }
  virtual void paint(QPainter&, const PaintSettings&) {}

 protected:
  Workbench& bench_;
};

using GesturePtr = std::unique_ptr<Gesture>;

/// Moves the view with the pointer.
GesturePtr makePan(Workbench& bench, const QPointF& start);

/// Selects what a rectangle touches, and backdrops that it holds: alone; with Shift in addition;
/// with Ctrl the other way round.
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

#pragma once

#include "standalone/widgets/compound/paint/Detail.h"
#include "standalone/widgets/compound/scene/LevelScene.h"

namespace orvuilib {

/// What lies under a point of the canvas; the part by which it is taken.
struct Hit {
  enum class Part { Nothing, Title, Body, Port, AddPort, Wire, Note, NoteHandle };

  Part part = Part::Nothing;
  BoxItem* box = nullptr;
  const PortSlot* slot = nullptr;  ///< of the port; also when its row is hit beside its dot
  bool onDot = false;
  Wire* wire = nullptr;
  NoteItem* note = nullptr;

  bool isBox() const { return box != nullptr; }
  orvlib::PortObject* port() const { return slot ? slot->port.get() : nullptr; }
};

/// The topmost thing at the point, a point of the scene. What is not painted with these settings is
/// not hit.
Hit hitAt(const LevelScene& scene, const QPointF& point, const PaintSettings& settings);

/// The wire that crosses the box and does not belong to it; null when there is none.
Wire* wireThrough(const LevelScene& scene, const BoxItem& box, WireStyle style);

}  // namespace orvuilib

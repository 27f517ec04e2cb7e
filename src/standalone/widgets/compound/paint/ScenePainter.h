#pragma once

#include <QImage>
#include <functional>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/paint/BoxPainter.h"
#include "standalone/widgets/compound/paint/WirePainter.h"

namespace orvuilib {

/// What a picture shows beside the scene itself.
struct SceneLook {
  PaintSettings settings;
  qreal gridStep = 0;  ///< 0 for no grid
  const BoxItem* hoveredBox = nullptr;
  const Wire* hoveredWire = nullptr;
  BoxPainter::Accepts accepts;
};

/// Paints a scene, or a part of it, into a picture of 32 bits a pixel without transparency.
class ScenePainter {
 public:
  ScenePainter(const LevelScene& scene, const SceneLook& look) : scene_(scene), look_(look) {}

  /// All that lies in `area`, in pixels. From below: the grid, backdrops, wires, values, boxes,
  /// sticky notes.
  void paint(QImage& picture, const QRect& area);

  /// How many things were drawn by all calls.
  std::size_t boxCount() const { return boxCount_; }
  std::size_t wireCount() const { return wireCount_; }

 private:
  void begin(QPainter& painter, const QRect& area) const;
  void paintBackground(QPainter& painter, const QRect& area) const;
  void paintNotes(QPainter& painter, bool backdrops) const;
  void paintWires(QImage& picture, const QRect& area) const;
  void paintBoxes(QPainter& painter) const;

  const LevelScene& scene_;
  const SceneLook& look_;
  std::size_t boxCount_ = 0;
  std::size_t wireCount_ = 0;

  // What lies in the part that is painted.
  QRectF part_;
  std::vector<const NoteItem*> notes_;
  std::vector<Wire*> wires_;
  std::vector<BoxItem*> boxes_;
};

}  // namespace orvuilib

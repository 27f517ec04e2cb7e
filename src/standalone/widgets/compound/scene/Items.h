#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QStaticText>
#include <QString>
#include <memory>
#include <optional>
#include <vector>

#include "standalone/graph/model/AnnotationObject.h"
#include "standalone/graph/model/CompoundObject.h"
#include "standalone/graph/model/NodeObject.h"
#include "standalone/widgets/compound/scene/LooseGrid.h"

namespace orvuilib {

struct Wire;

/// One row of a box: a port, a component of one, or a member of a fan-in port.
struct PortSlot {
  /// Hidden ports have no row of their own: their wires end at the title.
  static constexpr int kNoRow = -1;

  orvlib::PortRef port;
  int row = 0;
  int depth = 0;      ///< how far below a top-level port it is
  bool left = false;  ///< it takes values, and lies at the left side
  QRgb colour = 0;    ///< of its type

  bool operator==(const PortSlot& other) const {
    return port.get() == other.port.get() && row == other.row && left == other.left &&
           colour == other.colour;
  }
};

/// The last value of a watched port, beside it.
struct ValueLabel {
  std::uint64_t latest = 0;  ///< which record it shows; 0 for none
  QString text;
  QRectF bounds;
  QRgb colour = 0;

  bool looksLike(const ValueLabel& other) const {
    return text == other.text && bounds == other.bounds && colour == other.colour;
  }
};

enum class BoxKind : unsigned char {
  Node,
  Inputs,  ///< the compound's own inputs, as seen from inside, as far as no node shows them
  Outputs,
};

/// What a box shows as text, prepared for painting when it is first painted.
struct BoxTexts {
  QStaticText title;
  std::vector<QStaticText> ports;  ///< by slot
};

/// A node, or one side of the boundary of the level.
struct BoxItem {
  BoxKind kind = BoxKind::Node;

  /// For a boundary, the node of the level.
  orvlib::NodeRef node;

  QRectF bounds;
  GridPlace place;
  std::vector<PortSlot> portSlots;
  int rows = 0;

  /// Those that end here, and those that begin here, in no order.
  std::vector<Wire*> arriving;
  std::vector<Wire*> leaving;

  std::uint64_t serial = 0;  ///< later ones lie on top
  bool selected = false;
  bool placed = false;   ///< the graph says where it is
  bool watched = false;  ///< a port of it has a watch point
  QRgb titleColour = 0;
  std::vector<ValueLabel> values;  ///< of watched ports that are shown
  std::unique_ptr<BoxTexts> texts;
};

/// A connection, from a slot that gives to one that takes.
struct Wire {
  orvlib::PortRef source;
  orvlib::PortRef target;
  BoxItem* from = nullptr;
  BoxItem* to = nullptr;
  std::uint32_t indexAtFrom = 0;  ///< in `leaving`
  std::uint32_t indexAtTo = 0;    ///< in `arriving`
  QPointF start;
  QPointF end;
  QRectF bounds;
  GridPlace place;
  QRgb colour = 0;
};

inline constexpr QSizeF kSmallestNote(60, 40);

/// A backdrop or a sticky note.
struct NoteItem {
  orvlib::AnnotationRef annotation;
  QRectF bounds;
  std::optional<QPointF> freePlace;  ///< where it lies as long as the graph says nothing of that
  GridPlace place;
  QString text;
  QRgb colour = 0;
  bool selected = false;

  bool isBackdrop() const { return annotation->kind() == orvlib::AnnotationKind::Backdrop; }
};

}  // namespace orvuilib

#pragma once

#include <QPointF>
#include <span>
#include <vector>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/scene/LevelScene.h"

namespace orvuilib::edits {

using NoteRefs = std::vector<orvlib::AnnotationRef>;
using NodeRefs = std::vector<orvlib::NodeRef>;

/// Where the upper left corners of some nodes and notes are, each in the order of their level. A
/// graph need not say it: it is as the canvas shows them.
struct Arrangement {
  std::vector<QPointF> nodes;
  std::vector<QPointF> notes;

  /// The upper left corner of all.
  QPointF corner() const;
};

/// What is selected in a scene, as it stands there.
Arrangement arrangementOfSelection(const LevelScene& scene);

/// Nodes and notes of one level by the positions that they have; those without one stand below the
/// others, the nodes in columns.
Arrangement arrangementOf(const NodeRefs& nodes, const NoteRefs& notes, const Theme& theme);

/// The size that the box of a node has when nothing of it is open.
QSizeF boxSizeOf(orvlib::NodeObject& node, const Theme& theme);

}  // namespace orvuilib::edits

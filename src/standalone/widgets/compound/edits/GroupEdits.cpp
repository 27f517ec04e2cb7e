// What comes in many at once and has to find its place: pasting, duplicating, exploding.

#include "standalone/widgets/compound/edits/NodeEdits.h"
#include "standalone/widgets/compound/scene/Placement.h"

namespace orvuilib::edits {

using orvlib::AnnotationObject;
using orvlib::NodeObject;
using orvlib::NodeRef;
using orvUI_v1::CommandHook;

namespace {

/// How far a copy is from what it is of.
constexpr QPointF kBeside(40, 40);

/// How much there is on a level, to find later what came since.
struct Count {
  unsigned int nodes;
  unsigned int annotations;
};

Count countOf(const EditSession& session) {
  return {session.level().nodes().count(), session.level().annotations().count()};
}

std::vector<NodeRef> nodesSince(const EditSession& session, const Count& before) {
  std::vector<NodeRef> fresh;
  const auto& nodes = session.level().nodes();
  for (unsigned int i = before.nodes; i < nodes.count(); ++i) fresh.emplace_back(nodes.at(i));
  return fresh;
}

std::vector<orvlib::AnnotationRef> annotationsSince(const EditSession& session,
                                                    const Count& before) {
  std::vector<orvlib::AnnotationRef> fresh;
  const auto& annotations = session.level().annotations();
  for (unsigned int i = before.annotations; i < annotations.count(); ++i) {
    fresh.emplace_back(annotations.at(i));
  }
  return fresh;
}

QPointF positionOf(const orvlib::Properties& metadata) {
  return placement::pointIn(metadata, placement::kPosition).value_or(QPointF());
}

/// The corner of all that came.
QPointF topLeftOf(const std::vector<NodeRef>& nodes,
                  const std::vector<orvlib::AnnotationRef>& annotations) {
  QPointF least(1e9, 1e9);
  const auto take = [&least](const orvlib::Properties& metadata) {
    const QPointF at = positionOf(metadata);
    least = {std::min(least.x(), at.x()), std::min(least.y(), at.y())};
  };
  for (const NodeRef& node : nodes) take(node->metadata());
  for (const auto& annotation : annotations) take(annotation->metadata());
  return least;
}

/// Shifts what came since then by `offset`.
void shift(EditSession& session, const Count& before, const QPointF& offset) {
  for (const NodeRef& node : nodesSince(session, before)) {
    setPosition(session, *node, positionOf(node->metadata()) + offset);
  }
  for (const auto& annotation : annotationsSince(session, before)) {
    const QString text = placement::toText(positionOf(annotation->metadata()) + offset);
    session.hook().editAnnotation(CommandHook::kSetAnnotationMetaDataValue, session.levelHandle(),
                                  annotation->getName(), placement::kPosition,
                                  text.toUtf8().constData());
  }
}

}  // namespace

std::vector<NodeRef> paste(EditSession& session, const QPointF& at) {
  const Count before = countOf(session);
  const EditStep step(session, QStringLiteral("Paste"));
  session.hook().pasteClipboard({session.levelHandle(), false});
  const auto nodes = nodesSince(session, before);
  const auto annotations = annotationsSince(session, before);
  if (nodes.empty() && annotations.empty()) return {};
  shift(session, before, at - topLeftOf(nodes, annotations));
  return nodes;
}

/// By the clipboard, as there is no other road that keeps connections among the copies.
std::vector<NodeRef> duplicateSelection(EditSession& session) {
  // A node that has no position of its own has one on the canvas.
  std::vector<QPointF> places;
  for (const BoxItem* box : session.scene().selectedBoxes()) {
    places.push_back(box->bounds.topLeft());
  }
  const Count before = countOf(session);
  const EditStep step(session, QStringLiteral("Duplicate"));
  copySelection(session);
  session.hook().pasteClipboard({session.levelHandle(), true});
  const auto nodes = nodesSince(session, before);
  for (std::size_t i = 0; i < nodes.size() && i < places.size(); ++i) {
    setPosition(session, *nodes[i], places[i] + kBeside);
  }
  shift(session, {session.level().nodes().count(), before.annotations}, kBeside);
  return nodes;
}

std::vector<NodeRef> explode(EditSession& session) {
  std::vector<std::pair<NodeRef, QPointF>> compounds;
  for (const BoxItem* box : session.scene().selectedBoxes()) {
    if (box->node->compound()) compounds.emplace_back(box->node, box->bounds.topLeft());
  }
  std::vector<NodeRef> all;
  if (compounds.empty()) return all;
  const EditStep step(session, QStringLiteral("Explode"));
  for (const auto& [compound, place] : compounds) {
    Count before = countOf(session);
    const auto list = ORV_v1::NodeList::createNew(session.scene().level());
    list->add(EditSession::handle(*compound));
    ORV_v1::NodeList* raw = list.get();
    session.hook().explodeCompounds(session.levelHandle(), raw);
    // One that is locked or referenced stays.
    if (compound->parent() == &session.level()) continue;
    --before.nodes;
    const auto nodes = nodesSince(session, before);
    if (nodes.empty()) continue;
    shift(session, before, place - topLeftOf(nodes, annotationsSince(session, before)));
    all.insert(all.end(), nodes.begin(), nodes.end());
  }
  return all;
}

}  // namespace orvuilib::edits

#include "standalone/widgets/compound/edits/ScriptText.h"

#include <QCryptographicHash>

#include "standalone/graph/model/ContainerObject.h"
#include "standalone/widgets/compound/edits/ScriptWriter.h"

namespace orvuilib {

using orvlib::AnnotationObject;
using orvlib::NodeObject;

namespace {

/// What is selected, in the order of the level, so that the copies stand in it too.
template <class Object, class List>
std::vector<Object*> selectedIn(const LevelScene& scene, const List& list) {
  std::vector<Object*> selected;
  for (Object* object : list.items()) {
    const auto* item = scene.find(object);
    if (item && item->selected) selected.push_back(object);
  }
  return selected;
}

/// No graph has a node of that name, unless these very lines were run there and did not end.
std::string scratchName(const std::string& text) {
  const QByteArray bytes = QByteArray::fromStdString(text);
  const QByteArray hash = QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex();
  return "copied_" + hash.left(12).toStdString();
}

std::string linesIn(const LevelScene& scene, const std::string& scratch) {
  const std::string level = scene.levelNode()->fullPath();
  const orvlib::CompoundObject& compound = *scene.level();
  ScriptWriter writer(scene.levelNode()->container()->containerName());
  writer.line("orvCompound", level, "-create " + quoted(scratch));
  writer.write((level == "/" ? level : level + '/') + scratch,
               selectedIn<NodeObject>(scene, compound.nodes()),
               selectedIn<AnnotationObject>(scene, compound.annotations()));
  writer.line("orvCompound", level, "-explode " + quoted(scratch));
  return writer.take();
}

}  // namespace

/// The lines build in a compound of their own, where every name is free, and let it go at the end:
/// what it holds gets free names then.
QString selectionAsScript(const LevelScene& scene) {
  if (scene.selectedBoxes().empty() && scene.selectedNotes().empty()) return {};
  if (!scene.levelNode()->container()) return {};
  return QString::fromStdString(linesIn(scene, scratchName(linesIn(scene, "copied"))));
}

}  // namespace orvuilib

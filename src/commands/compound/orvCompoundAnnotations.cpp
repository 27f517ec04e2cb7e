#include "commands/compound/orvCompoundCmd.h"
#include "platform/ORV_1_0/Annotation.h"
#include "platform/ORV_1_0/String.h"
#include "plugin/fromUTF8.h"
#include "plugin/refuse.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::Annotation;
using ORV_v1::Compound;

bool orvCompoundCmd::parseAddBackdrop(Parse& parse) {
  return parse.forEachUse([&](const KArgList& use) {
    annotationCommand.createBackdrop(use.asString(0).asUTF8());
    return true;
  });
}

/// The flag takes a text, and a sticky note takes none: it is dropped.
bool orvCompoundCmd::parseAddStickyNote(Parse& parse) {
  return parse.forEachUse([&](const KArgList&) {
    annotationCommand.createStickyNote();
    return true;
  });
}

bool orvCompoundCmd::parseRemoveAnnotation(Parse& parse) {
  return parse.forEachUse([&](const KArgList& use) {
    annotationCommand.deleteAnnotation(use.asString(0).asUTF8());
    return true;
  });
}

bool orvCompoundCmd::parseRenameAnnotation(Parse& parse) {
  return parse.forEachUse([&](const KArgList& use) {
    annotationCommand.renameAnnotation(use.asString(0).asUTF8(), use.asString(1).asUTF8());
    return true;
  });
}

bool orvCompoundCmd::parseSetAnnotationMetaDataValue(Parse& parse) {
  const KString annotation = parse.text(0);
  const KString key = parse.text(1);
  if (annotation.length() == 0 || key.length() == 0) {
    return refuse(rEmptyAnnotationMetaDataNameError, annotation, key);
  }
  annotationCommand.setAnnotationMetaDataValue(annotation.asUTF8(), key.asUTF8(),
                                               parse.text(2).asUTF8());
  return true;
}

/// The message gets the annotation alone here, and shows the position of the key as it stands.
bool orvCompoundCmd::parseQueryAnnotationMetaDataValue(Parse& parse) {
  queriedAnnotationName = parse.text(0);
  queriedAnnotationMetaName = parse.text(1);
  const bool named = queriedAnnotationName.length() > 0 && queriedAnnotationMetaName.length() > 0;
  return named || refuse(rEmptyAnnotationMetaDataNameError, queriedAnnotationName);
}

/// The library passes over annotations that are not there.
bool orvCompoundCmd::redoAnnotations(Compound&) {
  annotationCommand.redo();
  return true;
}

void orvCompoundCmd::undoAnnotations(Compound&) { annotationCommand.undo(); }

void orvCompoundCmd::queryAnnotationMetaDataValue(Compound& compound) {
  const AddRefWrapper<ORV_v1::Node> node = compound.getAsNode();
  ORV_v1::Namable path = node->getFullPathName();
  path.appendNodeName(queriedAnnotationName.asUTF8());
  const AddRefWrapper<Annotation> annotation =
      node->getContainer()->findAnnotationFromPath(path.getName());
  if (!annotation) return;
  setResult(fromUTF8(
      annotation->getAnnotationMetaDataValue(queriedAnnotationMetaName.asUTF8()).toChar()));
}

// What hangs on nodes and ports beside their structure: metadata, state flags, annotations, watch
// points.

#include "hook/Target.h"
#include "hook/execution.h"
#include "hook/orvVeskCommandHook.h"

namespace {

/// The flag that stands for an operation, and how many texts follow it.
struct EditRow {
  const char* flag;
  int texts;
};

/// By the number of the operation.
constexpr EditRow kAnnotationEdits[] = {
    {"-addBackdrop", 1},
    {"-addStickyNote", 1},
    {"-renameAnnotation", 2},
    {"-removeAnnotation", 1},
    {"-setAnnotationMetaDataValue", 3},
};
constexpr EditRow kWatchPointEdits[] = {{"-create", 0}, {"-remove", 0}, {"-setMetaData", 2}};

/// Adds the row of the operation. A number without a row adds nothing, and the line runs all the
/// same.
template <std::size_t rows, class... Text>
void addEdit(CommandLine& line, const EditRow (&table)[rows], unsigned int operation,
             const Text&... texts) {
  if (operation >= rows) return;
  const EditRow& row = table[operation];
  line.flag(row.flag);
  int left = row.texts;
  ((left-- > 0 ? void(line.text(texts)) : void()), ...);
}

CommandLine metadataLine(int targetKind, const ORV_v1::AddRefWrapper<ORV_v1::Node>& node) {
  return lineFor(targetKind != 0 ? kCompoundCommand : kNodeCommand, Target(node));
}

}  // namespace

void orvVeskCommandHook::setMetaData(int targetKind, const NodeHandle& node, const QString& key,
                                     const QString& value) {
  runLine(metadataLine(targetKind, node).flag("-setMetaData").text(key).text(value));
}

void orvVeskCommandHook::addMetaData(int targetKind, const NodeHandle& node, const QString& key,
                                     const QString& value) {
  runLine(metadataLine(targetKind, node).flag("-addMetaData").text(key).text(value));
}

void orvVeskCommandHook::removeMetaData(int targetKind, const NodeHandle& node, const QString& key,
                                        const QString& value) {
  runLine(metadataLine(targetKind, node).flag("-removeMetaData").text(key).text(value));
}

void orvVeskCommandHook::clearMetaData(int targetKind, const NodeHandle& node, const QString& key) {
  runLine(metadataLine(targetKind, node).flag("-clearMetaData").text(key));
}

void orvVeskCommandHook::setMetaDataFromString(int targetKind, const NodeHandle& node,
                                               const ORV_v1::PropertyList& metadata) {
  CommandLine line = metadataLine(targetKind, node);
  runLine(line.flag("-setMetaDataFromString").properties(metadata));
}

bool orvVeskCommandHook::setStateFlag(const NodeHandle& node, char flag, bool value) {
  CommandLine line = lineFor(kNodeCommand, Target(node));
  line.flag("-setStateFlag").text(QString(QLatin1Char(flag))).boolean(value);
  return bool(runLine(line));
}

/// Only 1 is a compound here; for the metadata of a node everything but 0 is.
void orvVeskCommandHook::setPortMetaDataValue(int targetKind, const PortHandle& port,
                                              const QString& key, const QString& value) {
  CommandLine line = lineFor(targetKind == 1 ? kCompoundCommand : kNodeCommand, Target(port));
  runLine(line.flag("-setPortMetaDataValue").text(shortNameOf(*port)).text(key).text(value));
}

void orvVeskCommandHook::editAnnotation(unsigned int operation, const CompoundHandle& compound,
                                        const char* name, const char* second, const char* third) {
  CommandLine line = lineFor(kCompoundCommand, Target(compound));
  addEdit(line, kAnnotationEdits, operation, name, second, third);
  runLine(line);
}

bool orvVeskCommandHook::editWatchPoint(unsigned int operation, const PortHandle& port,
                                        const QString& key, const QString& value) {
  CommandLine line = lineFor(kWatchPointCommand, Target(port));
  if (port->getParentPort()) {
    line.text(fullNameOf(port));
  } else {
    line.text(shortNameOf(*port));
  }
  addEdit(line, kWatchPointEdits, operation, key, value);
  return runLineForSuccess(line);
}

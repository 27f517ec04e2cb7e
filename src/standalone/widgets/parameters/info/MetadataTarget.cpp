#include "standalone/widgets/parameters/info/MetadataTarget.h"

#include "standalone/graph/model/CompoundObject.h"
#include "standalone/graph/model/WatchPointObject.h"
#include "standalone/widgets/parameters/PortEdits.h"

namespace orvuilib {

using orvlib::Properties;
using orvUI_v1::CommandHook;

const Properties& NodeMetadata::metadata() const {
  const bool ofCompound = kind_ == CommandHook::kTargetCompound && node_->compound();
  return ofCompound ? node_->compound()->metadata() : node_->metadata();
}

CommandHook* NodeMetadata::hook() const {
  return node_->container() ? hookOf(node_->core()) : nullptr;
}

CommandHook::NodeHandle NodeMetadata::handle() const {
  return CommandHook::NodeHandle(node_.get());
}

/// A compound that is locked stands in an open level, so that the lock can be taken off.
bool NodeMetadata::isEditable() const { return isInOpenLevel(*node_); }

void NodeMetadata::set(const QString& key, const QString& value) {
  if (hook()) hook()->setMetaData(kind_, handle(), key, value);
}

void NodeMetadata::add(const QString& key, const QString& value) {
  if (hook()) hook()->addMetaData(kind_, handle(), key, value);
}

void NodeMetadata::remove(const QString& key, const QString& value) {
  if (hook()) hook()->removeMetaData(kind_, handle(), key, value);
}

void NodeMetadata::clear(const QString& key) {
  if (hook()) hook()->clearMetaData(kind_, handle(), key);
}

void NodeMetadata::replace(const Properties& metadata) {
  if (!hook()) return;
  hook()->setMetaDataFromString(kind_, handle(), ORV_v1::GraphAccess::makePropertyList(metadata));
}

bool PortMetadata::isEditable() const {
  const orvlib::NodeObject* node = port_->node();
  return node && isInOpenLevel(*node) && (!port_->isInner() || node->compound()->isOpenToEdits());
}

QString PortMetadata::hint() const {
  return "min, max: what may be entered\nsoftMin, softMax: what the slider spans\n"
         "choices: {VALUE=LABEL,...}\nlines: the height of a text field";
}

/// An empty value takes the key away.
void PortMetadata::set(const QString& key, const QString& value) {
  if (!isEditable()) return;
  const auto kind = port_->isInner() ? CommandHook::kTargetCompound : CommandHook::kTargetNode;
  hookOf(port_->node()->core())
      ->setPortMetaDataValue(kind, CommandHook::PortHandle(port_.get()), key, value);
}

const Properties& WatchMetadata::metadata() const {
  static const Properties none;
  const orvlib::WatchPointObject* watch = port_->watchPoint();
  return watch ? watch->metadata() : none;
}

bool WatchMetadata::isEditable() const {
  const orvlib::NodeObject* node = port_->node();
  return node && port_->watchPoint() && isInOpenLevel(*node);
}

void WatchMetadata::set(const QString& key, const QString& value) {
  if (!isEditable()) return;
  hookOf(port_->node()->core())
      ->editWatchPoint(CommandHook::kSetWatchPointMetaData, CommandHook::PortHandle(port_.get()),
                       key, value);
}

}  // namespace orvuilib

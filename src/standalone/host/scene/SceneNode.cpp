#include "standalone/host/scene/SceneNode.h"

#include <QUuid>

#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/scene/Scene.h"

namespace vesk {

SceneNode::SceneNode(std::string type, std::string name, std::string uuid,
                     std::unique_ptr<NodePayload> payload)
    : type_(std::move(type)),
      name_(std::move(name)),
      uuid_(std::move(uuid)),
      identifier_(HostAccess::uuid(uuid_)),
      payload_(std::move(payload)) {}

void SceneNode::contentChanged() {
  if (scene_) scene_->setModified(true);
}

std::string SceneNode::makeUuid() {
  return QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString();
}

bool SceneNode::isUuid(std::string_view text) {
  const QString written = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  const QUuid uuid = QUuid::fromString(written);
  return !uuid.isNull() && uuid.toString(QUuid::WithoutBraces) == written;
}

}  // namespace vesk

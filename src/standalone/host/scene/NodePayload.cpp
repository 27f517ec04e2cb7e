#include "standalone/host/scene/NodePayload.h"

namespace vesk {

void NodePayload::enteredScene(SceneNode&) {}
void NodePayload::leftScene(SceneNode&) {}
void NodePayload::renamed(SceneNode&) {}

std::optional<TextError> ForeignPayload::load(std::string_view text) {
  text_ = text;
  return {};
}

}  // namespace vesk

#include "standalone/host/scene/Scene.h"

#include <QDir>
#include <QFileInfo>
#include <utility>

#include "standalone/host/engine/Messages.h"
#include "standalone/host/engine/SceneEvents.h"
#include "standalone/host/language/Tokenizer.h"
#include "standalone/host/scene/SceneFile.h"

namespace vesk {
namespace {

std::string absolutePath(const std::string& path) {
  const QString absolute = QFileInfo(QString::fromStdString(path)).absoluteFilePath();
  return QDir::cleanPath(absolute).toStdString();
}

/// The wanted name, or the type's where that leaves nothing, in the characters of a name.
std::string cleanName(std::string_view wanted, std::string_view type) {
  const std::string name = cleanNodeName(wanted);
  return name.empty() ? cleanNodeName(type) : name;
}

}  // namespace

/// Marks the scene busy while its events are sent: a listener must not replace what is being
/// replaced.
class Scene::Busy {
 public:
  explicit Busy(Scene& scene) : scene_(scene) { scene_.busy_ = true; }
  ~Busy() { scene_.busy_ = false; }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;

 private:
  Scene& scene_;
};

Scene::Scene(MessageChannel& messages, SceneEvents& events)
    : messages_(messages), events_(events) {}

Scene::~Scene() { clear(); }

SceneNodePtr Scene::findByUuid(std::string_view uuid) const {
  const auto found = byUuid_.find(uuid);
  return found == byUuid_.end() ? nullptr : found->second;
}

SceneNodePtr Scene::makeNode(const NodeType& type, std::string_view wantedName) {
  std::string name = names_.freeName(cleanName(wantedName, type.name));
  return std::make_shared<SceneNode>(type.name, std::move(name), SceneNode::makeUuid(),
                                     type.makePayload ? type.makePayload() : nullptr);
}

bool Scene::insert(const SceneNodePtr& node) {
  if (node->scene_ || names_.find(node->name()) || byUuid_.contains(node->uuid())) return false;
  if (node->place_ == 0) node->place_ = nextPlace_++;
  nodes_.emplace(node->place_, node);
  names_.add(node);
  byUuid_.emplace(node->uuid(), node);
  node->scene_ = this;
  modified_ = true;
  if (NodePayload* payload = node->payload()) payload->enteredScene(*node);
  changed_.tell();
  return true;
}

bool Scene::remove(const SceneNodePtr& node) {
  if (node->scene_ != this) return false;
  const SceneNodePtr kept = node;  // the argument may lie in a map below
  selection_.remove(*kept);
  byUuid_.erase(kept->uuid());
  names_.remove(kept->name());
  nodes_.erase(kept->place_);
  kept->scene_ = nullptr;
  modified_ = true;
  if (NodePayload* payload = kept->payload()) payload->leftScene(*kept);
  changed_.tell();
  return true;
}

void Scene::rename(const SceneNodePtr& node, std::string_view wantedName) {
  if (node->scene_ != this) return;
  names_.remove(node->name());  // a node's own name is free for it
  const std::string name = names_.freeName(cleanName(wantedName, node->type()));
  names_.add(node);
  replaceName(node, name);
}

bool Scene::setName(const SceneNodePtr& node, const std::string& name) {
  const SceneNodePtr owner = find(name);
  if (node->scene_ != this || (owner && owner != node)) return false;
  replaceName(node, name);
  return true;
}

void Scene::replaceName(const SceneNodePtr& node, const std::string& name) {
  if (node->name() == name) return;
  names_.remove(node->name());
  node->name_ = name;
  names_.add(node);
  modified_ = true;
  if (NodePayload* payload = node->payload()) payload->renamed(*node);
  changed_.tell();
}

void Scene::setModified(bool modified) {
  if (std::exchange(modified_, modified) != modified) changed_.tell();
}

void Scene::clear() {
  while (!nodes_.empty()) remove(nodes_.rbegin()->second);
}

KStatus Scene::refuse(std::string_view what, const std::string& path, std::string_view reason) {
  messages_.error("cannot " + std::string(what) + " " + vesk::quoted(path) + ": " +
                  std::string(reason));
  return StatusFailure;
}

KStatus Scene::refuseWhenBusy() {
  if (!busy_) return StatusSuccess;
  messages_.error("the scene is just being replaced or saved");
  return StatusFailure;
}

KStatus Scene::startNew() {
  if (const KStatus status = refuseWhenBusy(); !status) return status;
  const Busy busy(*this);
  events_.send(SceneEvent::BeforeNew);
  clear();
  path_.clear();
  modified_ = false;
  changed_.tell();
  events_.send(SceneEvent::AfterNew);
  return StatusSuccess;
}

KStatus Scene::open(const std::string& path) {
  if (const KStatus status = refuseWhenBusy(); !status) return status;
  const std::string file = absolutePath(path);
  std::string reason;
  const auto text = store_->read(file, reason);
  if (!text) return refuse("open", file, reason);
  SceneText scene = readSceneText(*text, types_);
  if (!scene.error.empty()) return refuse("open", file, scene.error);

  const Busy busy(*this);
  events_.send(SceneEvent::BeforeOpen);
  clear();
  for (const SceneNodePtr& node : scene.nodes) insert(node);
  path_ = file;
  modified_ = false;
  changed_.tell();
  for (const std::string& warning : scene.warnings)
    messages_.warning(vesk::quoted(file) + ": " + warning);
  events_.send(SceneEvent::AfterOpen);
  return StatusSuccess;
}

KStatus Scene::save(const std::string& path) {
  if (const KStatus status = refuseWhenBusy(); !status) return status;
  const std::string file = absolutePath(path);
  const Busy busy(*this);
  events_.send(SceneEvent::BeforeSave);
  const std::string problem = store_->write(file, writeSceneText(*this));
  if (!problem.empty()) return refuse("save", file, problem);
  path_ = file;
  modified_ = false;
  changed_.tell();
  events_.send(SceneEvent::AfterSave);
  return StatusSuccess;
}

}  // namespace vesk

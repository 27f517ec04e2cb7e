#include "standalone/graph/model/ContainerObject.h"

#include <algorithm>
#include <utility>

#include "standalone/graph/model/ContainerTable.h"
#include "standalone/graph/model/NodeFactory.h"

namespace orvlib {

using ORV_v1::GraphAccess;

ContainerObject::ContainerObject(std::string runtime)
    : core_(new GraphCore(*this, std::move(runtime))) {
  top_ = NodeFactory(*core_).makeCompound("top");
  ContainerTable::enter(*this);
}

ContainerObject::~ContainerObject() {
  retire();
  ContainerTable::leave(*this);
  withdrawUuid();
  core_->container_ = nullptr;
}

void ContainerObject::retire() {
  const bool settling = std::exchange(settling_, true);
  for (std::size_t i = 0; i < listeners_.size(); ++i) {
    if (listeners_[i]) listeners_[i]->graphGoes(*this);
  }
  settling_ = settling;
  if (!settling) std::erase(listeners_, nullptr);
}

void ContainerObject::publishUuid(const std::string& uuid) {
  withdrawUuid();
  uuid_ = uuid;
  ContainerTable::add(uuid_, *this);
}

void ContainerObject::withdrawUuid() {
  if (!uuid_.empty()) ContainerTable::remove(uuid_, *this);
  uuid_.clear();
}

void ContainerObject::replaceTop(NodeRef top) {
  // What held brackets must still be there when it leaves.
  const NodeRef former = std::exchange(top_, std::move(top));
  nodesLeft();
  core_->watches().bringBack(*top_);
  touch(*top_, kContentChange);
}

void ContainerObject::addListener(ChangeListener& listener) { listeners_.push_back(&listener); }

void ContainerObject::removeListener(ChangeListener& listener) {
  // While listeners are told, the others keep their places.
  if (settling_) {
    std::ranges::replace(listeners_, &listener, nullptr);
  } else {
    std::erase(listeners_, &listener);
  }
}

bool ContainerObject::holds(const Client& client) const {
  return GraphAccess::containerOf(client) == this;
}

bool ContainerObject::openBracket(Client* client) {
  if (!client) client = this;
  if (!holds(*client)) return false;
  if (GraphAccess::ownBrackets(*client)++ == 0) clients_.push_back(client);
  ++brackets_;
  return true;
}

bool ContainerObject::closeBracket(Client* client) {
  if (!client) client = this;
  if (!holds(*client) || GraphAccess::ownBrackets(*client) == 0) return false;
  endBracket(*client);
  return true;
}

void ContainerObject::endBracket(Client& client) {
  // Whoever closed by hand what a bracket value holds has closed it already.
  if (GraphAccess::ownBrackets(client) == 0) return;
  const bool last = --GraphAccess::ownBrackets(client) == 0;
  const auto entry = std::ranges::find(clients_, &client);
  if (entry == clients_.end()) {
    if (last) std::erase(absentClients_, &client);
    return;
  }
  if (last) clients_.erase(entry);
  release();
}

void ContainerObject::release() {
  if (brackets_ == 1) {
    core_->undoOrder().undoWaiting();
  } else {
    core_->undoOrder().undoLatestWaiting();
  }
  if (--brackets_ > 0) return;
  ++bracketRound_;
  if (!settling_) settle();
}

void ContainerObject::settle() {
  settling_ = true;
  // A listener that changes the graph is told of that in a further round.
  while (!changes_.empty()) {
    told_.swap(changes_);
    for (NodeChange& change : told_) change.bits = std::exchange(change.node->changes_, 0);
    const std::size_t count = listeners_.size();
    for (std::size_t i = 0; i < count; ++i) {
      if (listeners_[i]) listeners_[i]->graphChanged(*this, told_);
    }
    told_.clear();
  }
  settling_ = false;
  std::erase(listeners_, nullptr);
}

void ContainerObject::touch(NodeObject& node, unsigned char bits) {
  ++revision_;
  if (node.changes_ == 0) changes_.push_back({NodeRef(&node), 0});
  node.changes_ |= bits;
}

void ContainerObject::nodesLeft() {
  std::erase_if(clients_, [this](Client* client) {
    if (holds(*client)) return false;
    absentClients_.push_back(client);
    brackets_ -= GraphAccess::ownBrackets(*client);
    return true;
  });
}

void ContainerObject::nodesEntered() {
  std::erase_if(absentClients_, [this](Client* client) {
    if (!holds(*client)) return false;
    clients_.push_back(client);
    brackets_ += GraphAccess::ownBrackets(*client);
    return true;
  });
}

void ContainerObject::forget(NodeObject& node) {
  if (clients_.empty() && absentClients_.empty()) return;
  Client* const gone[] = {&node, node.compound()};
  for (Client* client : gone) {
    std::erase(clients_, client);
    std::erase(absentClients_, client);
  }
}

ORV_v1::AddRefWrapper<ORV_v1::Node> ContainerObject::getTopNode() {
  return ORV_v1::AddRefWrapper<ORV_v1::Node>(top_.get());
}

ORV_v1::Namable ContainerObject::getContainerName() { return GraphAccess::makeNamable(name_); }

ORV_v1::ChangeBracket ContainerObject::makeChangeBracket(Client* client) {
  return GraphAccess::makeBracket(*this, client ? *client : *this);
}

ORV_v1::AddRefWrapper<ORV_v1::PortDataType> ContainerObject::findPortType(const char* name) const {
  return name ? core_->findType(name) : ORV_v1::AddRefWrapper<ORV_v1::PortDataType>();
}

ORV_v1::Container* ContainerObject::clientContainer() const {
  return const_cast<ContainerObject*>(this);
}

}  // namespace orvlib

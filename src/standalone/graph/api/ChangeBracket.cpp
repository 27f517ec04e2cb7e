#include "platform/ORV_1_0/ChangeBracket.h"

#include <utility>

#include "standalone/graph/model/ContainerObject.h"

namespace ORV_v1 {

struct ChangeBracket::Rep {
  orvlib::CoreRef core;
  ChangeBracketClient* client;

  /// What keeps the client alive. The container needs nothing: the core tells when it is gone.
  AddRefWrapper<ReferenceCounted> kept;
};

ChangeBracket::ChangeBracket(Rep* rep) : rep_(rep) {}

ChangeBracket::ChangeBracket(ChangeBracket&& other) noexcept
    : rep_(std::exchange(other.rep_, nullptr)) {}

ChangeBracket::~ChangeBracket() {
  if (rep_) GraphAccess::endBracket(*rep_);
  delete rep_;
}

ChangeBracket GraphAccess::makeBracket(orvlib::ContainerObject& container,
                                       ChangeBracketClient& client) {
  if (!container.openBracket(&client)) return ChangeBracket(nullptr);
  return ChangeBracket(
      new ChangeBracket::Rep{orvlib::CoreRef(&container.core()), &client,
                             AddRefWrapper<ReferenceCounted>(client.clientObject())});
}

void GraphAccess::endBracket(const ChangeBracket::Rep& bracket) {
  if (orvlib::ContainerObject* container = bracket.core->container()) {
    container->endBracket(*bracket.client);
  }
}

Container* GraphAccess::containerOf(const ChangeBracketClient& client) {
  return client.clientContainer();
}

unsigned int& GraphAccess::ownBrackets(ChangeBracketClient& client) { return client.ownBrackets_; }

}  // namespace ORV_v1

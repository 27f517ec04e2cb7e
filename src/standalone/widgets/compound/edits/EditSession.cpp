#include "standalone/widgets/compound/edits/EditSession.h"

#include <utility>

#include "platform/ORV_1_0/Host.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/widgets/hooks/HookRegistry.h"

namespace orvuilib {

orvUI_v1::CommandHook* EditSession::findHook() const {
  const ORV_v1::Host host;
  const std::string& runtime = scene_.levelNode()->core().runtime();
  return HookRegistry::commandHook(host.getRuntimeByName(runtime.c_str()));
}

orvUI_v1::AppServicesHook* EditSession::services() const { return HookRegistry::appServicesHook(); }

bool EditSession::hasHook() const {
  return scene_.levelNode() && scene_.levelNode()->container() && findHook();
}

QString EditSession::refusal() const {
  if (!scene_.levelNode() || !scene_.levelNode()->container()) return QStringLiteral("No graph");
  if (!hasHook()) return QStringLiteral("Read only: no program takes edits");
  if (!level().isEditable())
    return QStringLiteral("Read only: the compound is locked or referenced");
  return {};
}

EditStep::EditStep(EditSession& session, const QString& name)
    : session_(session),
      outer_(std::exchange(session.openStep_, this)),
      hook_(session.hook()),
      services_(session.services()),
      core_(&session.level().node()->core()),
      name_(name) {
  if (!outer_) open();
  revision_ = core_->container()->revision();
}

void EditStep::open() {
  if (services_) services_->openUndoChunk(name_);
  hook_.openChangeBracket(core_->container());
}

/// A graph that is gone was changed.
bool EditStep::changedNothing() const {
  const orvlib::ContainerObject* container = core_->container();
  return container && container->revision() == revision_;
}

QString EditStep::report(bool takenBack) const {
  if (!reason_.isEmpty()) return reason_;
  if (takenBack) return QStringLiteral("%1: could not be done, nothing is changed").arg(name_);
  return QStringLiteral("%1: a part of it could not be done").arg(name_);
}

EditStep::~EditStep() {
  session_.openStep_ = outer_;
  const bool nothing = changedNothing();
  const bool fails = nothing || failures_ > 0;
  if (outer_) {
    passUp(fails);
  } else {
    close(fails, nothing);
  }
}

void EditStep::close(bool fails, bool nothing) {
  if (core_->container()) hook_.closeChangeBracket(core_->container());
  if (services_ && fails) services_->abandonUndoChunk();
  if (services_ && !fails) services_->closeUndoChunk();
  if (fails) session_.tell(report(nothing || services_));
}

/// An abandoned chunk costs a step, and there is one for both.
void EditStep::passUp(bool fails) {
  outer_->require(!fails);
  if (fails && outer_->reason_.isEmpty()) outer_->setReason(reason_);
}

}  // namespace orvuilib

#include "standalone/widgets/compound/edits/EditSession.h"

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

EditStep::EditStep(const EditSession& session, const QString& name)
    : session_(session),
      hook_(session.hook()),
      services_(session.services()),
      core_(&session.level().node()->core()),
      name_(name) {
  if (services_) services_->openUndoChunk(name);
  hook_.openChangeBracket(core_->container());
  revision_ = core_->container()->revision();
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
  const bool nothing = changedNothing();
  if (core_->container()) hook_.closeChangeBracket(core_->container());
  const bool fails = nothing || failures_ > 0;
  if (services_ && fails) services_->abandonUndoChunk();
  if (services_ && !fails) services_->closeUndoChunk();
  if (fails) session_.tell(report(nothing || services_));
}

}  // namespace orvuilib

#include "standalone/widgets/compound/edits/PortEdits.h"

#include "platform/ORV_1_0/NewPortHints.h"
#include "standalone/widgets/compound/edits/WireEdits.h"

namespace orvuilib::edits {

using orvlib::CompoundObject;
using orvlib::PortListObject;
using orvlib::PortObject;
using orvUI_v1::CommandHook;

namespace {

PortObject* makePort(EditSession& session, CompoundObject& compound, bool output,
                     const std::string& name, const std::string& type) {
  ORV_v1::NewPortHints hints;
  hints.setNameHint(name.c_str());
  hints.setTypeHint(type.c_str());
  CommandHook::PortHandle made;
  const CommandHook::CompoundHandle handle(&compound);
  session.hook().createCompoundPort(handle, output, hints, made);
  return EditSession::object(made);
}

/// For a fan-in port, the type of its members.
const std::string& typeFor(const PortObject& port) {
  const auto& type = port.valueType();
  return port.isFanInPort() && type.element ? type.element->name : type.name;
}

/// The outer face lies in this list, and a port of a plain node does.
PortListObject& listOf(PortObject& port) {
  PortObject& outer = port.isInner() && port.twin() ? *port.twin() : port;
  return outer.node()->list(outer.direction());
}

}  // namespace

CompoundObject* compoundOfPort(const PortObject& port) {
  return port.above() || !port.node() ? nullptr : port.node()->compound();
}

void createLevelPort(EditSession& session, bool output, PortObject* like) {
  CompoundObject& level = session.level();
  if (!like) {
    makePort(session, level, output, output ? "output" : "input", "float");
    return;
  }
  const EditStep step(session, QStringLiteral("Add port"));
  PortObject* made = makePort(session, level, output, like->name(), typeFor(*like));
  if (!made) return;
  const auto joint = jointOf(*like, *made);
  if (joint) connect(session, *joint->source, *joint->target);
}

void createPort(EditSession& session, CompoundObject& compound, bool output, const QString& name,
                const QString& type) {
  makePort(session, compound, output, name.toStdString(), type.toStdString());
}

void renamePort(EditSession& session, PortObject& port, const QString& name) {
  session.hook().renamePort(EditSession::handle(port), name);
}

void deletePort(EditSession& session, PortObject& port) {
  session.hook().deletePort(EditSession::handle(port));
}

void setPortHidden(EditSession& session, PortObject& port, bool hidden) {
  const auto handle = EditSession::handle(port);
  if (compoundOfPort(port)) return session.hook().hidePort(handle, hidden);
  if (hidden) {
    session.hook().setPortFlag(handle, ORV_v1::kPortHidden);
  } else {
    session.hook().clearPortFlag(handle, ORV_v1::kPortHidden);
  }
}

bool movePort(EditSession& session, PortObject& port, int places) {
  if (!compoundOfPort(port)) return false;
  PortListObject& list = listOf(port);
  PortObject* outer = port.isInner() ? port.twin() : &port;
  const int to = static_cast<int>(list.indexOf(outer)) + places;
  if (places == 0 || to < 0 || to >= static_cast<int>(list.count())) return false;
  session.hook().movePort(EditSession::handle(port), static_cast<unsigned int>(to));
  return true;
}

void setPortType(EditSession& session, PortObject& port, const QString& type) {
  const int kind = compoundOfPort(port) ? CommandHook::kTargetCompound : CommandHook::kTargetNode;
  session.hook().setPortDataType(kind, EditSession::handle(port), type);
}

void disconnectPort(EditSession& session, PortObject& port) {
  std::vector<Joint> joints;
  for (PortObject* peer : port.peers().items()) {
    if (auto joint = jointOf(port, *peer)) joints.push_back(*std::move(joint));
  }
  if (!joints.empty()) removeWires(session, joints);
}

PortObject& watchedFace(PortObject& port) {
  PortObject* twin = port.twin();
  if (!twin || port.above()) return port;
  PortObject& outer = port.isInner() ? *twin : port;
  return outer.isInput() ? outer : *outer.twin();
}

void toggleWatchPoint(EditSession& session, PortObject& port) {
  PortObject& face = watchedFace(port);
  const auto operation =
      face.watchPoint() ? CommandHook::kRemoveWatchPoint : CommandHook::kCreateWatchPoint;
  session.hook().editWatchPoint(operation, EditSession::handle(face), {}, {});
}

}  // namespace orvuilib::edits

#pragma once

#include "standalone/widgets/compound/edits/EditSession.h"

namespace orvuilib {
namespace edits {

/// The compound whose port it is, on either of its faces; null for a port of any other node.
orvlib::CompoundObject* compoundOfPort(const orvlib::PortObject& port);

/// Makes a port of the level itself. `like` gives name and type, and is connected to the new port;
/// null makes one that is named after its direction, of the type `float`.
void createLevelPort(EditSession& session, bool output, orvlib::PortObject* like);

/// The same for a port on a compound's box, of a type.
void createPort(EditSession& session, orvlib::CompoundObject& compound, bool output,
                const QString& name, const QString& type);

void renamePort(EditSession& session, orvlib::PortObject& port, const QString& name);
void deletePort(EditSession& session, orvlib::PortObject& port);
void setPortHidden(EditSession& session, orvlib::PortObject& port, bool hidden);

/// By so many places among the ports of its direction. False when it cannot go there.
bool movePort(EditSession& session, orvlib::PortObject& port, int places);

void setPortType(EditSession& session, orvlib::PortObject& port, const QString& type);
void disconnectPort(EditSession& session, orvlib::PortObject& port);

/// What a watch point for the port would be on: of a compound's port it is the face that a command
/// means.
orvlib::PortObject& watchedFace(orvlib::PortObject& port);
void toggleWatchPoint(EditSession& session, orvlib::PortObject& port);

}  // namespace edits
}  // namespace orvuilib

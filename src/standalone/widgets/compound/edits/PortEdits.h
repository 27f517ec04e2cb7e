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

/// By so many places among those that stand with it in one column of a box, to the end at most;
/// hidden ones and those on other boxes do not count. False when it is there already, and for a
/// port that has no row.
ORVUI_EXPORT bool movePort(EditSession& session, orvlib::PortObject& port, int places);

/// Where a port comes to be that is let go at that height of its box.
struct PortDrop {
  int places = 0;  ///< what `movePort` is to be told
  qreal line = 0;  ///< the height between the ports that it comes to stand between
};
ORVUI_EXPORT PortDrop portDropAt(const BoxItem& box, const orvlib::PortObject& port, qreal y);

void setPortType(EditSession& session, orvlib::PortObject& port, const QString& type);
void disconnectPort(EditSession& session, orvlib::PortObject& port);

/// What a watch point for the port would be on: of a compound's port it is the face that a command
/// means.
orvlib::PortObject& watchedFace(orvlib::PortObject& port);
bool toggleWatchPoint(EditSession& session, orvlib::PortObject& port);

}  // namespace edits
}  // namespace orvuilib

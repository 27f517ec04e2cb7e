#pragma once

#include "platform/ORV_1_0/Container.h"
#include "platform/ORV_1_0/Port.h"
#include "platform/ORV_1_0/PortList.h"
#include "platform/ORV_1_0/PortProperties.h"
#include "platform/OpenVesk/KArgDatabase.h"
#include "platform/OpenVesk/KStringArray.h"

/// Reads what `-portFlags`, `-portValues` and `-portOptions` say of the ports that a line creates;
/// all of them get the same. Values that cannot be read are not told of: the port is then made with
/// those of its type. False, and the user is told, when the options cannot be read.
bool readPortProperties(const KArgDatabase& db, ORV_v1::Container& container, const KString& type,
                        ORV_v1::PortProperties& properties);

/// Sets the command's result to the port's values: one value is a text, any other number of them a
/// list. False stands for a port that has none to give.
void setDefaultValuesResult(const ORV_v1::Port& port);

/// The names of the ports, in the order of the list.
KStringArray namesOf(const ORV_v1::PortList& ports);

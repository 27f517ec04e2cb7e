#include "commands/portArguments.h"

#include "platform/ORV_1_0/OptionalStringArray.h"
#include "platform/ORV_1_0/PortTypeLookup.h"
#include "platform/ORV_1_0/PropertyList.h"
#include "platform/OpenVesk/KPxCommand.h"
#include "plugin/flagReading.h"
#include "plugin/fromUTF8.h"
#include "plugin/orvBaseCmd.h"
#include "plugin/refuse.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::Container;
using ORV_v1::Port;
using ORV_v1::PortDataType;
using ORV_v1::PortProperties;
using ORV_v1::PropertyList;
using ORV_v1::StringArray;

namespace {

void readValues(const FlagReading& values, Container& container, const KString& type,
                PortProperties& properties) {
  StringArray texts;
  const AddRefWrapper<PortDataType> found = container.portTypeLookup().findPortType(type.asChar());
  unserializePortValues(values.text(), texts, found);
  properties.defaultValues().setValues(texts);
}

bool readOptions(const KString& options, PortProperties& properties) {
  return properties.options().unserialize(options.asUTF8(), PropertyList::kSerializeAll) ||
         refuse(rInvalidPortOptions, options);
}

}  // namespace

bool readPortProperties(const KArgDatabase& db, Container& container, const KString& type,
                        PortProperties& properties) {
  unsigned int flags = 0;
  if (db.getFlagArgument("-cpf", 0, flags)) properties.setFlags(flags);
  if (db.isFlagSet("-cpv")) readValues({db, "-cpv"}, container, type, properties);
  return !db.isFlagSet("-cpo") || readOptions(FlagReading{db, "-cpo"}.text(), properties);
}

void setDefaultValuesResult(const Port& port) {
  StringArray values;
  if (!port.getPortDefaultValues(values)) return KPxCommand::setResult(false);
  if (values.size() == 1) return KPxCommand::setResult(fromUTF8(values[0]));
  KStringArray texts;
  toKStringArray(values, texts);
  KPxCommand::setResult(texts);
}

KStringArray namesOf(const ORV_v1::PortList& ports) {
  KStringArray names;
  names.setLength(ports.size());
  unsigned int next = 0;
  for (const AddRefWrapper<Port>& port : ports) names[next++] = fromUTF8(port->getName());
  return names;
}

#include "plugin/orvBaseCmd.h"

#include <type_traits>

#include "platform/ORV_1_0/Node.h"
#include "platform/ORV_1_0/Port.h"
#include "platform/ORV_1_0/QtConversions.h"
#include "platform/OpenVesk/KFnDependencyNode.h"
#include "platform/OpenVesk/KGlobal.h"
#include "plugin/fromUTF8.h"
#include "plugin/pluginMessages.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::Compound;
using ORV_v1::Container;
using ORV_v1::Node;
using ORV_v1::PortDataType;
using ORV_v1::StringArray;

// The host deletes a command through `KPxCommand`; this base adds data and no table of its own.
static_assert(!std::is_polymorphic_v<orvBaseCmd>);
static_assert(sizeof(orvBaseCmd) == sizeof(KString), "the container's name is the one field");

Container* orvBaseCmd::requireContainer() const {
  Container* container = findContainer(containerName);
  if (!container) displayError(rInvalidORVContainerError, containerName);
  return container;
}

AddRefWrapper<Compound> orvBaseCmd::requireCompound(const KString& path) const {
  Container* container = requireContainer();
  return container ? requireCompound(*container, path) : AddRefWrapper<Compound>();
}

AddRefWrapper<Compound> orvBaseCmd::requireCompound(Container& container, const KString& path) {
  const AddRefWrapper<Node> node = container.findNodeFromPath(path.asUTF8());
  AddRefWrapper<Compound> compound = node ? node->asCompound() : AddRefWrapper<Compound>();
  if (!compound) displayError(rInvalidCompoundNameError, path);
  return compound;
}

KStatus orvBaseCmd::parseContainer(const KArgDatabase& db, KStatus status) {
  if (status) status = getContainerArgument(containerName, db);
  if (!status) displayError(rParsingError);
  return status;
}

KStatus orvBaseCmd::requireArgument(const KArgDatabase& db, unsigned int index, KString& value) {
  const KStatus status = db.getCommandArgument(index, value);
  if (!status) displayError(rTooFewArgsError);
  return status;
}

/// The host reads positional numbers with a sign; the syntax has refused negative ones.
KStatus orvBaseCmd::requireArgument(const KArgDatabase& db, unsigned int index,
                                    unsigned int& value) {
  int number = 0;
  const KStatus status = db.getCommandArgument(index, number);
  value = static_cast<unsigned int>(number);
  if (!status) displayError(rTooFewArgsError);
  return status;
}

void addStringArgument(KSyntax& syntax) { syntax.addArg(KSyntax::ArgString); }

KStatus getContainerArgument(KString& containerName, const KArgDatabase& db) {
  const KStatus status = db.getCommandArgument(0, containerName);
  if (!status) displayError(rTooFewArgsError);
  return status;
}

Container* findContainer(const KString& name) {
  KSelectionList list;
  if (!KGlobal::getSelectionListByName(name, list)) return Container::getFromUUID(name.asUTF8());
  KObject object;
  if (!list.getDependNode(0, object)) return nullptr;
  return Container::getFromUUID(KFnDependencyNode(object).uuid().asString().asUTF8());
}

void toStringArray(const KStringArray& from, StringArray& to) {
  to.clear();
  for (const KString& text : from) to.add(text.asChar());
}

void toKStringArray(const StringArray& from, KStringArray& to) {
  const unsigned int size = from.size();
  to.setLength(size);
  for (unsigned int i = 0; i < size; ++i) to[i] = fromUTF8(from[i]);
}

bool unserializePortValues(const KString& text, StringArray& out,
                           const AddRefWrapper<PortDataType>& type) {
  return ORV_v1::Port::unserializePortValuesString(text.asUTF8(), out, type);
}

void serializeStringList(const QStringList& list, QString& out) {
  const StringArray texts = ORV_v1::fromQStringList(list);
  out = ORV_v1::toQString(
      texts.serialize(StringArray::kSerializeWithTags, StringArray::kDefaultSerializationTags));
}

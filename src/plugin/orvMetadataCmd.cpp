#include "plugin/orvMetadataCmd.h"

#include "platform/OpenVesk/KPxCommand.h"
#include "plugin/FlagRow.h"
#include "plugin/flagReading.h"
#include "plugin/fromUTF8.h"
#include "plugin/refuse.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::Compound;
using ORV_v1::Metadata;
using ORV_v1::Node;
using ORV_v1::Port;
using ORV_v1::PropertyList;
using ORV_v1::StringArray;

namespace {

constexpr FlagRow kFlags[] = {
    {"-qmd", "-queryMetaData", KSyntax::ArgString},
    {"-qms", "-queryMetaDatas"},
    {"-smd", "-setMetaData", KSyntax::ArgString, KSyntax::ArgString},
    {"-amd", "-addMetaData", KSyntax::ArgString, KSyntax::ArgString},
    {"-rmd", "-removeMetaData", KSyntax::ArgString, KSyntax::ArgString},
    {"-cmd", "-clearMetaData", KSyntax::ArgString},
    {"-mfs", "-setMetaDataFromString", KSyntax::ArgString},
    {"-mas", "-queryMetaDataAsString"},
};

/// An argument that cannot be read counts as empty, and an empty name is refused.
bool readName(const KArgDatabase& db, const char* flag, KString& name) {
  name = FlagReading{db, flag}.text();
  return name.length() > 0 || refuse(rEmptyMetadataError);
}

/// The value may be empty.
bool readNameAndValue(const KArgDatabase& db, const char* flag, KString& name, KString& value) {
  value = FlagReading{db, flag}.text(1);
  return readName(db, flag, name);
}

void setResult(const StringArray& texts) {
  KStringArray result;
  toKStringArray(texts, result);
  KPxCommand::setResult(result);
}

}  // namespace

orvMetadataCmd::orvMetadataCmd() = default;

orvMetadataCmd::~orvMetadataCmd() = default;

void orvMetadataCmd::addMetadataFlags(KSyntax& syntax) { addFlags(syntax, kFlags); }

void orvMetadataCmd::parseCompoundMetadata(KStatus& status, const KArgDatabase& db,
                                           const AddRefWrapper<Compound>& compound) {
  status = StatusFailure;
  const AddRefWrapper<Node> node = compound ? compound->getAsNode() : AddRefWrapper<Node>();
  if (!node) return;
  metadataCommand.setParentCompound(node->getContainer(), node->getFullPathName().getName());
  parseMetadataFlags(status, db);
}

void orvMetadataCmd::parseNodeMetadata(KStatus& status, const KArgDatabase& db,
                                       const AddRefWrapper<Node>& node) {
  status = StatusFailure;
  if (!node) return;
  metadataCommand.setParentNode(node->getContainer(), node->getFullPathName().getName());
  parseMetadataFlags(status, db);
}

void orvMetadataCmd::parseWatchPointMetadata(KStatus& status, const KArgDatabase& db,
                                             const AddRefWrapper<Port>& port) {
  status = StatusFailure;
  if (!port) return;
  metadataCommand.setParentWatchPoint(findContainer(containerName),
                                      port->getFullPathName().getName());
  parseMetadataFlags(status, db);
}

void orvMetadataCmd::parseMetadataFlags(KStatus& status, const KArgDatabase& db) {
  struct Step {
    const char* flag;
    bool (orvMetadataCmd::*parse)(const KArgDatabase& db, const char* flag);
  };
  static constexpr Step kSteps[] = {
      {"-qms", &orvMetadataCmd::parseQueryAll},   {"-qmd", &orvMetadataCmd::parseQuery},
      {"-smd", &orvMetadataCmd::parseSet},        {"-amd", &orvMetadataCmd::parseAdd},
      {"-rmd", &orvMetadataCmd::parseRemove},     {"-cmd", &orvMetadataCmd::parseClear},
      {"-mfs", &orvMetadataCmd::parseFromString}, {"-mas", &orvMetadataCmd::parseQueryAsString},
  };
  status = StatusFailure;
  for (const Step& step : kSteps) {
    if (db.isFlagSet(step.flag) && !(this->*step.parse)(db, step.flag)) return;
  }
  status = StatusSuccess;
}

bool orvMetadataCmd::parseQueryAll(const KArgDatabase&, const char*) {
  return queryAllMetadata = true;
}

bool orvMetadataCmd::parseQuery(const KArgDatabase& db, const char* flag) {
  return readName(db, flag, queryMetadataName);
}

bool orvMetadataCmd::parseSet(const KArgDatabase& db, const char* flag) {
  KString name, value;
  if (!readNameAndValue(db, flag, name, value)) return false;
  KStringArray texts;
  texts.append(value);
  StringArray values;
  toStringArray(texts, values);
  metadataCommand.setMetadata(name.asUTF8(), values);
  return metadataChanged = true;
}

bool orvMetadataCmd::parseAdd(const KArgDatabase& db, const char* flag) {
  KString name, value;
  if (!readNameAndValue(db, flag, name, value)) return false;
  metadataCommand.addMetadata(name.asUTF8(), value.asUTF8());
  return metadataChanged = true;
}

bool orvMetadataCmd::parseRemove(const KArgDatabase& db, const char* flag) {
  KString name, value;
  if (!readNameAndValue(db, flag, name, value)) return false;
  metadataCommand.removeMetadata(name.asUTF8(), value.asUTF8());
  return metadataChanged = true;
}

bool orvMetadataCmd::parseClear(const KArgDatabase& db, const char* flag) {
  KString name;
  if (!readName(db, flag, name)) return false;
  metadataCommand.clearMetadata(name.asUTF8());
  return metadataChanged = true;
}

bool orvMetadataCmd::parseFromString(const KArgDatabase& db, const char* flag) {
  metadataSourceText = FlagReading{db, flag}.text();
  if (metadataSourceText.length() == 0) return refuse(rInvalidMetadataError);
  PropertyList properties;
  if (!properties.unserialize(metadataSourceText.asUTF8(), PropertyList::kSerializeAll)) {
    return refuse(rInvalidMetadataError);
  }
  metadataCommand.setFromPropertyList(properties);
  return metadataChanged = true;
}

bool orvMetadataCmd::parseQueryAsString(const KArgDatabase&, const char*) {
  return queryMetadataAsString = true;
}

/// A list replaces the text, and all names go before the values of one.
void orvMetadataCmd::queryMetadataResult(const Metadata* metadata) const {
  if (!metadata) return;
  if (queryMetadataAsString) {
    const ORV_v1::String text = metadata->getMetadata().serialize(PropertyList::kSerializeAll);
    KPxCommand::setResult(fromUTF8(text.toChar()));
  }
  if (!queryAllMetadata && queryMetadataName.length() == 0) return;
  StringArray texts;
  if (queryAllMetadata) {
    metadata->getMetadataKeys(texts);
  } else {
    metadata->getMetadataValues(queryMetadataName.asUTF8(), texts);
  }
  setResult(texts);
}

bool orvMetadataCmd::redoMetadata() { return !metadataChanged || metadataCommand.redo(); }

void orvMetadataCmd::undoMetadata() {
  if (metadataChanged) metadataCommand.undo();
}

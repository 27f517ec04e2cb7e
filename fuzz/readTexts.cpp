// Values, lists and properties as text.

#include "fuzz/Bytes.h"
#include "fuzz/readers.h"
#include "fuzz/require.h"
#include "standalone/graph/api/GraphAccess.h"
#include "standalone/graph/library/RuntimeRegistry.h"
#include "standalone/graph/texts/ListText.h"
#include "standalone/graph/texts/PropertiesText.h"
#include "standalone/graph/texts/ValueListText.h"
#include "standalone/graph/types/ValueText.h"

namespace fuzz {
namespace {

const std::vector<orvlib::TypeHandle>& types() {
  const ORV_v1::Runtime& runtime = *orvlib::RuntimeRegistry::current()->find("standard");
  return ORV_v1::GraphAccess::loaded(runtime).description().types.all();
}

}  // namespace

void readValueList(std::string_view text) {
  const auto texts = orvlib::readList(text);
  if (!texts) return;
  const std::string written = orvlib::writeList(*texts);
  require(orvlib::readList(written) == texts, "a list reads back", written);
}

void readPropertyText(std::string_view text) {
  const auto properties = orvlib::readProperties(text);
  if (!properties) return;
  const std::string written = orvlib::writeProperties(*properties);
  const auto again = orvlib::readProperties(written);
  require(again && *again == *properties, "properties read back", written);
  for (const std::string& key : properties->keys()) {
    require(!key.empty() && properties->find(key), "a key is found", written);
  }
}

void readTypedValues(std::string_view text) {
  Bytes bytes(text);
  const orvlib::ValueType& type = *bytes.oneOf(types());
  const auto texts = orvlib::readValues(bytes.rest(), &type);
  if (!texts) return;
  const orvlib::ParsedValue parsed = orvlib::parseValue(type, *texts);
  require(parsed.value.has_value(), "values that were read fit their type", type.name);
  const std::vector<std::string> printed = orvlib::printValue(*parsed.value);
  const auto again = orvlib::parseValue(type, printed).value;
  require(again && orvlib::sameValue(*again, *parsed.value), "a value reads back", type.name);
  const std::string written = orvlib::writeList(printed);
  require(orvlib::readValues(written, &type) == printed, "a value's list reads back", written);
}

}  // namespace fuzz

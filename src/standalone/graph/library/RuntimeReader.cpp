#include "standalone/graph/library/RuntimeReader.h"

#include <algorithm>

#include "standalone/graph/library/Fields.h"
#include "standalone/graph/library/Names.h"
#include "standalone/graph/library/ValueReader.h"
#include "standalone/graph/types/ValueText.h"

namespace orvlib {
namespace {

/// Reads one port type: an array when it has an element, else components of one kind.
class TypeReader {
 public:
  TypeReader(const YamlNode& node, const TypeTable& earlier)
      : fields_(node, "a port type",
                {"name", "niceName", "description", "scalar", "components", "element", "default"}),
        earlier_(earlier) {
    type_.name = fields_.line("name");
    type_.niceName = fields_.line("niceName");
    type_.description = fields_.text("description");
    fields_.find("element") ? readElement() : readComponents();
    type_.defaultValue = readDefault(fields_, type_, zeroValue(type_));
  }

  ValueType take() { return std::move(type_); }

 private:
  void readElement() {
    const std::string& element = fields_.text("element");
    type_.element = earlier_.find(element);
    if (!type_.element) fields_.fail("element", "no port type '" + element + "' stands before it");
    if (type_.element->isArray()) fields_.fail("element", "an array cannot hold arrays");
    if (type_.name != "array<" + element + ">") {
      fields_.fail("name", "an array of '" + element + "' must be named 'array<" + element +
                               ">', not '" + type_.name + "'");
    }
    if (fields_.find("scalar")) fields_.fail("scalar", "an array has the scalar of its element");
    if (fields_.find("components")) fields_.fail("components", "an array has no components");
    type_.scalar = type_.element->scalar;
  }

  void readComponents() {
    fields_.identifier("name");
    const std::string& word = fields_.text("scalar");
    const auto scalar = scalarKindFromText(word);
    if (!scalar) {
      fields_.fail("scalar", "'" + word + "' is none of boolean, integer, float and string");
    }
    type_.scalar = *scalar;
    for (const YamlNode& item : fields_.list("components")) addComponent(item);
  }

  void addComponent(const YamlNode& item) {
    if (item.kind != YamlNode::Kind::Scalar || !isIdentifier(item.text)) {
      throw DefinitionError(item.position, "the component name '" + item.text +
                                               "' is no name: use letters, digits and '_'");
    }
    if (std::count(type_.components.begin(), type_.components.end(), item.text) > 0) {
      throw DefinitionError(item.position, "the component '" + item.text + "' appears twice");
    }
    type_.components.push_back(item.text);
  }

  Fields fields_;
  const TypeTable& earlier_;
  ValueType type_;
};

void readTypes(const Fields& fields, TypeTable& types) {
  fields.at("portTypes");
  for (const YamlNode& item : fields.list("portTypes")) {
    auto type = std::make_shared<const ValueType>(TypeReader(item, types).take());
    if (!types.add(type)) {
      throw DefinitionError(item.position, "the port type '" + type->name + "' appears twice");
    }
  }
}

}  // namespace

std::shared_ptr<const RuntimeDescription> readRuntime(const YamlNode& document) {
  const Fields fields(document, "a runtime",
                      {"name", "niceName", "description", "rootLibrary", "portTypes"});
  RuntimeDescription runtime;
  runtime.name = fields.identifier("name");
  runtime.namePosition = fields.positionOf("name");
  runtime.niceName = fields.line("niceName");
  runtime.description = fields.text("description");
  if (fields.find("rootLibrary")) runtime.rootLibrary = fields.identifier("rootLibrary");
  runtime.rootPosition = fields.positionOf("rootLibrary");
  readTypes(fields, runtime.types);
  return std::make_shared<const RuntimeDescription>(std::move(runtime));
}

}  // namespace orvlib

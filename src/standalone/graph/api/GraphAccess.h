#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/ORV_1_0/ChangeBracket.h"
#include "platform/ORV_1_0/ChangeBracketClient.h"
#include "platform/ORV_1_0/Namable.h"
#include "platform/ORV_1_0/PropertyList.h"
#include "platform/ORV_1_0/Runtime.h"
#include "platform/ORV_1_0/String.h"
#include "platform/ORV_1_0/StringArray.h"
#include "standalone/graph/library/LibraryDescription.h"
#include "standalone/graph/texts/Properties.h"

namespace orvlib {
class ContainerObject;
class LoadedRuntime;
}  // namespace orvlib

namespace ORV_v1 {

class Container;

struct Namable::Rep {
  std::string text;
};

struct String::Rep {
  std::string text;
};

struct StringArray::Rep {
  std::vector<std::string> texts;
};

struct PropertyList::Rep {
  orvlib::Properties properties;
};

struct PortDataType::Rep {
  orvlib::TypeHandle type;
};

struct NodeDefinition::Rep {
  std::shared_ptr<const orvlib::NodeDescription> description;
};

struct NodeLibrary::Rep {
  std::shared_ptr<const orvlib::LibraryDescription> description;
  std::vector<AddRefWrapper<NodeLibrary>> subLibraries;
  std::vector<AddRefWrapper<NodeDefinition>> nodes;
};

struct Runtime::Rep {
  std::unique_ptr<orvlib::LoadedRuntime> loaded;
};

/// What the library itself does with the hidden part of its public objects.
struct ORV_EXPORT GraphAccess {
  static Namable makeNamable(const std::string& text);
  static String makeString(std::string_view text);

  static StringArray makeStringArray(std::vector<std::string> texts);
  static const std::vector<std::string>& textsOf(const StringArray& array);
  static std::vector<std::string>& textsOf(StringArray& array);

  static PropertyList makePropertyList(orvlib::Properties properties);
  static const orvlib::Properties& propertiesOf(const PropertyList& list);

  /// The values of a key as list text; empty for an unknown or null key.
  static String makeMetadataText(const orvlib::Properties& metadata, const char* key);

  /// Opens a bracket, for a client of another graph none.
  static ChangeBracket makeBracket(orvlib::ContainerObject& container, ChangeBracketClient& client);
  static void endBracket(const ChangeBracket::Rep& bracket);
  static Container* containerOf(const ChangeBracketClient& client);
  static unsigned int& ownBrackets(ChangeBracketClient& client);

  static AddRefWrapper<PortDataType> makePortType(orvlib::TypeHandle type);
  static const orvlib::TypeHandle& typeOf(const PortDataType& type);

  static AddRefWrapper<NodeDefinition> makeNode(
      std::shared_ptr<const orvlib::NodeDescription> description);
  static const orvlib::NodeDescription& describe(const NodeDefinition& node);
  static std::shared_ptr<const orvlib::NodeDescription> sharedDescription(
      const NodeDefinition& node);

  /// A library that is still without sub-libraries and nodes: fill them in before it is shown.
  static AddRefWrapper<NodeLibrary> makeLibrary(
      std::shared_ptr<const orvlib::LibraryDescription> description);
  static std::vector<AddRefWrapper<NodeLibrary>>& subLibrariesOf(NodeLibrary& library);
  static std::vector<AddRefWrapper<NodeDefinition>>& nodesOf(NodeLibrary& library);
  static const orvlib::LibraryDescription& describe(const NodeLibrary& library);

  static std::unique_ptr<Runtime> makeRuntime(std::unique_ptr<orvlib::LoadedRuntime> loaded);
  static orvlib::LoadedRuntime& loaded(const Runtime& runtime);
};

}  // namespace ORV_v1

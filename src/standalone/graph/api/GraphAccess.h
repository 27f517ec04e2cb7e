#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/ORV_1_0/Namable.h"
#include "platform/ORV_1_0/Runtime.h"
#include "platform/ORV_1_0/String.h"
#include "platform/ORV_1_0/StringArray.h"
#include "standalone/graph/library/LibraryDescription.h"

namespace orvlib {
class LoadedRuntime;
}

namespace ORV_v1 {

struct Namable::Rep {
  std::string text;
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

  static AddRefWrapper<PortDataType> makePortType(orvlib::TypeHandle type);
  static const orvlib::TypeHandle& typeOf(const PortDataType& type);

  static AddRefWrapper<NodeDefinition> makeNode(
      std::shared_ptr<const orvlib::NodeDescription> description);
  static const orvlib::NodeDescription& describe(const NodeDefinition& node);

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

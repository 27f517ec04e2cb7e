#include "standalone/graph/library/RuntimeContent.h"

#include "standalone/graph/api/GraphAccess.h"
#include "standalone/graph/library/Names.h"

namespace orvlib {
namespace {

using ORV_v1::GraphAccess;
using LibraryRef = ORV_v1::AddRefWrapper<ORV_v1::NodeLibrary>;
using NodePtr = std::shared_ptr<const NodeDescription>;

class Maker {
 public:
  explicit Maker(const RuntimeContent& former) : former_(former) {}

  RuntimeContent take() { return std::move(content_); }

  void addTypes(const TypeTable& types) {
    for (const TypeHandle& type : types.all()) {
      const auto known = former_.typesByName.find(type->name);
      const bool same =
          known != former_.typesByName.end() && GraphAccess::typeOf(*known->second) == type;
      content_.portTypes.push_back(same ? known->second : GraphAccess::makePortType(type));
      content_.typesByName.emplace(type->name, content_.portTypes.back());
    }
  }

  void addLibrary(const LibraryPtr& description) {
    LibraryRef library = GraphAccess::makeLibrary(description);
    for (const NodePtr& node : description->nodes) addNode(*library, node);
    content_.librariesByName.emplace(description->name, library);
    added_.push_back(std::move(library));
  }

  void addCompound(const NodePtr& node) { addNode(*libraryOf(parentName(node->name)), node); }

  void joinLibraries() {
    for (LibraryRef& library : added_) {
      const auto parent = content_.librariesByName.find(parentName(library->getName()));
      if (parent == content_.librariesByName.end()) {
        content_.rootLibrary = std::move(library);
      } else {
        GraphAccess::subLibrariesOf(*parent->second).push_back(std::move(library));
      }
    }
  }

 private:
  void addNode(ORV_v1::NodeLibrary& library, const NodePtr& node) {
    const auto known = former_.nodesByName.find(node->name);
    const bool same = known != former_.nodesByName.end() &&
                      GraphAccess::sharedDescription(*known->second) == node;
    auto handle = same ? known->second : GraphAccess::makeNode(node);
    GraphAccess::nodesOf(library).push_back(handle);
    content_.nodesByName.emplace(node->name, std::move(handle));
  }

  /// The library of that name under the root, made with those above it when it is not there.
  LibraryRef libraryOf(std::string_view name) {
    const auto known = content_.librariesByName.find(name);
    if (known != content_.librariesByName.end()) return known->second;
    libraryOf(parentName(name));
    auto description = std::make_shared<LibraryDescription>();
    description->name = name;
    description->niceName = niceNameOf(name);
    description->description = "Published compounds.";
    addLibrary(std::move(description));
    return added_.back();
  }

  const RuntimeContent& former_;
  RuntimeContent content_;
  std::vector<LibraryRef> added_;
};

}  // namespace

RuntimeContent makeContent(const RuntimeDescription& runtime, const LibrariesByFile& libraries,
                           const CompoundFiles& compounds, const RuntimeContent& former) {
  Maker maker(former);
  maker.addTypes(runtime.types);
  for (const auto& [file, library] : libraries) maker.addLibrary(library);
  for (const CompoundFile& entry : compounds) maker.addCompound(entry.compound->node);
  maker.joinLibraries();
  return maker.take();
}

}  // namespace orvlib

// A first graph through the library's commands: built, evaluated, taken back and done again, saved
// with its scene, and loaded. Run it as
//   build/release/bin/first_graph SCENE_FILE

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>

#include "platform/ORV_1_0/Compound.h"
#include "platform/ORV_1_0/ConnectCommand.h"
#include "platform/ORV_1_0/Container.h"
#include "platform/ORV_1_0/CreateCompoundCommand.h"
#include "platform/ORV_1_0/ModifyNodePortCommand.h"
#include "platform/ORV_1_0/NodeCommand.h"
#include "standalone/graph/library/RuntimeRegistry.h"
#include "standalone/host/engine/HostSession.h"
#include "standalone/host/scene/Scene.h"
#include "standalone/vesk/DataFolders.h"
#include "standalone/vesk/OrvGraphPayload.h"
#include "standalone/vesk/evaluateCommand.h"

namespace {

using namespace ORV_v1;

void require(bool done, const std::string& what) {
  if (!done) throw std::runtime_error(what);
}

/// A host with graphs in its scene, and one graph named "first".
class Example {
 public:
  Example() {
    runtimes_.load(vesk::shippedLibraryFolder());
    runtimes_.makeCurrent();
    vesk::addOrvGraphType(session_.scene().types());
    vesk::registerEvaluateCommand(session_.registry());
  }

  /// Shows the line and its result, and gives the result.
  std::string run(const std::string& line) {
    vesk::ResultValue result;
    const KStatus status = session_.runLine(line, result);
    require(static_cast<bool>(status), "the line failed: " + line);
    std::cout << "> " << line << '\n';
    if (vesk::hasResult(result)) std::cout << vesk::toText(result) << '\n';
    return vesk::toText(result);
  }

  Container& graph() {
    const auto node = session_.scene().find("first");
    Container* container = node ? Container::getFromUUID(node->uuid().c_str()) : nullptr;
    require(container != nullptr, "the scene has no graph named first");
    return *container;
  }

  AddRefWrapper<Port> port(const char* path) {
    auto found = graph().findPortFromPath(path, Container::kSearchEither, Container::kSearchOuter);
    require(found != nullptr, std::string("there is no port ") + path);
    return found;
  }

  void setValue(const char* nodePath, const char* portName, const char* value) {
    StringArray values;
    values.add(value);
    ModifyNodePortCommand command;
    const AddRefWrapper<Node> node = graph().findNodeFromPath(nodePath);
    require(command.setPortValues(node, portName, values, false) && command.redo(),
            std::string("no value could be set on ") + nodePath);
  }

  void connect(const char* source, const char* destination) {
    ConnectCommand command;
    require(command.connect(&graph(), port(source), port(destination), false),
            std::string(source) + " could not be connected to " + destination);
  }

 private:
  orvlib::RuntimeRegistry runtimes_;
  vesk::HostSession session_;
};

/// (2 + 3) * 7, with the sum in a compound of its own.
void build(Example& example) {
  NodeCommand nodes;
  const auto top = example.graph().getTopNode()->asCompound();
  for (const char* type : {"core::math::add", "core::math::multiply"}) {
    require(nodes.createNode(top, type, ""), std::string("there is no definition ") + type);
  }
  require(nodes.redo(), "the nodes could not be added");
  example.setValue("/add", "a", "2");
  example.setValue("/add", "b", "3");
  example.setValue("/multiply", "b", "7");
  example.connect("/add.result", "/multiply.a");
  example.run("evaluate first /multiply.result");

  CreateCompoundCommand compound;
  require(compound.setParentCompound(&example.graph(), "/") && compound.addNodeToMove("add"),
          "the sum could not be found");
  compound.setNewCompoundName("sum");
  require(compound.doit(), "the compound could not be made");
  require(compound.undo() && compound.redo(), "the compound could not be taken back and redone");
  std::cout << "made " << compound.getCreatedCompoundPath().toChar() << '\n';
}

void show(const std::string& sceneFile) {
  Example example;
  example.run("createNode orvGraph -name first");
  build(example);
  const std::string before = example.run("evaluate first /multiply.result");
  example.run("file -saveAs \"" + sceneFile + '"');
  example.run("file -new");
  example.run("file -open \"" + sceneFile + '"');
  const std::string after = example.run("evaluate first /multiply.result");
  require(before == "35" && after == before, "the value changed from " + before + " to " + after);
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::cerr << "usage: first_graph SCENE_FILE\n";
    return EXIT_FAILURE;
  }
  try {
    show(arguments[1]);
  } catch (const std::exception& error) {
    std::cerr << "first_graph: " << error.what() << '\n';
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}

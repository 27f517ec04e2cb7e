#include "standalone/vesk/evaluateCommand.h"

#include "standalone/graph/types/ValueText.h"
#include "standalone/host/commands/BuiltinCommand.h"
#include "standalone/host/scene/Scene.h"
#include "standalone/vesk/OrvGraphPayload.h"

namespace vesk {
namespace {

constexpr FlagRow kFlags[] = {{"-s", "-step"}, {"-rs", "-resetState"}};
constexpr ArgType kArguments[] = {KSyntax::ArgString, KSyntax::ArgString};

class EvaluateCommand : public BuiltinCommand {
 public:
  static constexpr CommandRecord kRecord{
      "evaluate", "Gives the value of a port of a graph, one text a component.", kFlags,
      kArguments};

 private:
  KStatus run(const KArgDatabase& arguments) override {
    const std::vector<std::string> texts = positionalTexts(arguments);
    if (texts.size() < 2) return fail("say which graph, and which port of it");
    orvlib::Graph* graph = findGraph(texts[0]);
    if (!graph) return fail('"' + texts[0] + "\" is no node that carries a graph");
    orvlib::PortObject* port = findPort(graph->container(), texts[1]);
    if (!port) return fail("the graph \"" + texts[0] + "\" has no port \"" + texts[1] + '"');
    if (arguments.isFlagSet("-rs")) graph->evaluator().resetState();
    if (arguments.isFlagSet("-s")) graph->evaluator().step();
    std::vector<std::string> value = orvlib::printValue(graph->evaluator().value(*port));
    if (value.size() == 1) {
      setValue(std::move(value.front()));
    } else {
      setValue(std::move(value));
    }
    return StatusSuccess;
  }

  static orvlib::Graph* findGraph(const std::string& name) {
    const SceneNodePtr node = session().scene().find(name);
    auto* payload = node ? dynamic_cast<OrvGraphPayload*>(node->payload()) : nullptr;
    return payload ? &payload->graph() : nullptr;
  }

  /// A compound's port is meant by its outer face: what goes in, or comes out, there.
  static orvlib::PortObject* findPort(const orvlib::ContainerObject& graph,
                                      const std::string& path) {
    using ORV_v1::Container;
    return graph.findPort(path, Container::kSearchEither, Container::kSearchOuter);
  }
};

}  // namespace

void registerEvaluateCommand(CommandRegistry& registry) {
  registerBuiltin<EvaluateCommand>(registry);
}

}  // namespace vesk

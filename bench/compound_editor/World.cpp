#include "bench/compound_editor/World.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>

#include "commands/clipboard/orvCopyCmd.h"
#include "commands/clipboard/orvPasteCmd.h"
#include "commands/compound/orvCompoundCmd.h"
#include "commands/graph/orvConnectCmd.h"
#include "commands/graph/orvNodeCmd.h"
#include "plugin/orvChangeBracketCmd.h"
#include "plugin/pluginMessages.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/host/engine/ResultValue.h"
#include "standalone/host/scene/Scene.h"
#include "standalone/vesk/OrvGraphPayload.h"

namespace {

template <class Command>
void add(vesk::HostSession& session, const char* name) {
  session.registry().add({name, Command::creator, Command::createSyntax(), nullptr, {}});
}

}  // namespace

World::World(int nodes) {
  runtimes_.load(VESK_SOURCE_DIR "/library");
  runtimes_.makeCurrent();
  vesk::addOrvGraphType(session_.scene().types());
  registerMessages();
  add<orvCompoundCmd>(session_, "orvCompound");
  add<orvConnectCmd>(session_, "orvConnect");
  add<orvNodeCmd>(session_, "orvNode");
  add<orvCopyCmd>(session_, "orvCopy");
  add<orvPasteCmd>(session_, "orvPaste");
  add<orvChangeBracketCmd>(session_, "orvChangeBracket");
  run("createNode orvGraph -name g");
  const auto uuid = session_.scene().find("g")->uuid();
  graph_ = static_cast<orvlib::ContainerObject*>(ORV_v1::Container::getFromUUID(uuid.c_str()));
  build(nodes);
  session_.undoQueue().clear();
}

void World::run(const std::string& line) {
  vesk::ResultValue result;
  if (session_.runLine(line, result)) return;
  std::fprintf(stderr, "failed: %s\n", line.c_str());
  std::exit(1);
}

void World::build(int nodes) {
  std::mt19937 random(7);
  const int columns = static_cast<int>(std::sqrt(nodes));
  const auto name = [](int i) { return "/add" + (i ? std::to_string(i) : std::string()); };
  run("orvChangeBracket g -open");
  for (int i = 0; i < nodes; ++i) {
    run("orvCompound g \"/\" -addNode core::math::add");
    run("orvNode g \"" + name(i) + "\" -setMetaData editor.position \"" +
        std::to_string(i % columns * 200) + ',' + std::to_string(i / columns * 110) + '"');
    // From a near one and from one that may be anywhere above.
    if (i > 0)
      run("orvConnect g " + name(std::max(i - columns, i - 1)) + ".result " + name(i) + ".a");
    const int near =
        std::max(0, i - 1 - static_cast<int>(random() % static_cast<unsigned>(3 * columns)));
    if (i > 0) run("orvConnect g " + name(near) + ".result " + name(i) + ".b");
  }
  run("orvChangeBracket g -close");
}

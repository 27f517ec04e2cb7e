#include "fuzz/SessionWorld.h"

#include "fuzz/require.h"
#include "standalone/graph/clipboard/Clipboard.h"
#include "standalone/host/engine/OptionVariables.h"
#include "standalone/host/scene/Scene.h"
#include "standalone/host/scene/SceneFile.h"
#include "standalone/vesk/OrvGraphPayload.h"

namespace fuzz {
namespace {

constexpr std::string_view kFirstLines[] = {
    "createNode orvGraph -name \"g\"",
    "orvCompound g / -addNode core::math::add -addNode core::math::negate "
    "-addNode core::array::build -addNode core::color::mix3",
    "orvCompound g / -create \"group\" -moveNodeIn \"negate\" -addBackdrop \"frame\"",
    "orvCompound g /group -createInputPort in float -createOutputPort out float -addIONode true",
    "orvConnect g /group.in /group/negate.value; orvConnect g /add.result /group.in",
    "orvCopy g / -sourceNode {add,group} -sourceAnnotation frame",
};

vesk::ProgramOptions optionsIn(const TemporaryFolder& files) {
  vesk::ProgramOptions options;
  options.batch = true;
  options.preferencesFolder = files.path("preferences");
  options.publishedFolder = files.path("published");
  return options;
}

}  // namespace

SessionWorld::SessionWorld()
    : platform_(std::make_unique<vesk::Platform>(optionsIn(files_), silence_, false)) {
  require(platform_->problem().empty(), "the platform comes up", platform_->problem());
  std::filesystem::current_path(files_.path());
}

void SessionWorld::beginAnew() {
  vesk::UndoQueue& queue = session().undoQueue();
  queue.clear();
  queue.setEnabled(true);
  queue.setLimit(0);
  session().scene().startNew();
  session().mouseButtons = 3;
  orvlib::Clipboard::setText("");
  forgetOptions();
  if (filesWritten_) forgetFiles();
  run("colorManagement -enable true");
  for (const std::string_view line : kFirstLines) require(bool(run(line)), "the first lines", line);
  queue.clear();
}

void SessionWorld::forgetFiles() {
  files_.clear();
  std::filesystem::create_directory(files_.path("preferences"));
  run("orv -flushProxies standard");
  filesWritten_ = false;
}

void SessionWorld::forgetOptions() {
  vesk::OptionVariables& options = session().optionVariables();
  for (const std::string& name : options.names()) options.remove(name);
}

KStatus SessionWorld::run(std::string_view line) { return platform_->runLine(line, silence_); }

std::vector<orvlib::Graph*> SessionWorld::graphs() {
  std::vector<orvlib::Graph*> graphs;
  for (const auto& [place, node] : session().scene().nodes()) {
    auto* payload = dynamic_cast<vesk::OrvGraphPayload*>(node->payload());
    if (payload) graphs.push_back(&payload->graph());
  }
  return graphs;
}

std::string SessionWorld::sceneText() { return vesk::writeSceneText(session().scene()); }

}  // namespace fuzz

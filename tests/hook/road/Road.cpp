#include "tests/hook/road/Road.h"

#include "standalone/graph/model/ContainerObject.h"
#include "standalone/graph/storage/GraphText.h"
#include "standalone/host/scene/Scene.h"
#include "standalone/vesk/OrvGraphPayload.h"
#include "standalone/widgets/hooks/HookRegistry.h"
#include "testPaths.h"
#include "tests/standalone/vesk/ProgramRun.h"

namespace {

constexpr const char* kModule = VESK_BUILD_DIR "/plug-ins/veskOrvPlugin.so";

/// Compounds in one another, ports of many types, fan-in, state, annotations, a published compound;
/// and an empty clipboard, which outlives a host.
constexpr const char* kGraphLines[] = {
    "createNode orvGraph -name g",
    "orvCompound g / -create group -createInputPort in float -createOutputPort out color3",
    "orvCompound g /group -create inner -createInputPort size float -createInputPort tint color3",
    "orvCompound g /group -createOutputPort out float -addIONode true -addIONode false",
    "orvCompound g /group -movePortToIONode size input",
    "orvCompound g /group -movePortToIONode out output",
    "orvCompound g /group -addNode core::math::add -addBackdrop frame -addStickyNote text",
    "orvCompound g /group/inner -createInputPort p float -createOutputPort q float",
    "orvCompound g /group/inner -addNode core::math::negate -addStatePorts s t float",
    "orvCompound g / -addNode core::math::add -addNode core::color::mix3 -addBackdrop frame",
    "orvCompound g / -addNode core::array::build -addNode core::string::join",
    "orvConnect g /group/inner.p /group/inner/negate.value",
    "orvConnect g /group/inner/negate.result /group/inner.q",
    "orvConnect g /group.size /group/add.a",
    "orvConnect g /group/add.result /group/inner.p",
    "orvConnect g /group/inner.q /group.out",
    "orvConnect g /.in /add.a",
    "orvConnect g /add.result /group.size",
    "orvConnect g /add.result /mix3.a.r",
    "orvConnect g /add.result /build.elements",
    "orvCompound g / -create shared",
    "orvCompound g /shared -createInputPort a float -addNode core::math::negate",
    "orvCompound g /shared -publish shared \"\" \"Text.\" false",
    "orvCompound g / -addNode core::shared -addNode core::shared",
    "orvCopy g /",
};

}  // namespace

Road::Road() {
  std::filesystem::create_directory(files_.path("run"));
  std::filesystem::create_directory(files_.path("replay"));
  std::filesystem::current_path(files_.path("run"));
  runtimes_.setPublishedFolder(files_.path("published"));
  for (const auto& diagnostic : runtimes_.load(VESK_SOURCE_DIR "/library")) {
    ADD_FAILURE() << diagnostic.toText();
  }
  runtimes_.makeCurrent();
  host_ = std::make_unique<hosttest::Host>();
  vesk::addOrvGraphType(host_->session().scene().types());
  EXPECT_TRUE(host_->session().plugins().load(kModule));
  EXPECT_TRUE(host_->session().journal().open(files_.path("journal.vesk")));
  journal_.open(files_.path("journal.vesk"), std::ios::binary);
  makeGraph();
}

Road::~Road() {
  services().setUndoSuspended(false);
  host_->takeMessages();
  host_.reset();
  std::filesystem::current_path(folderBefore_);
}

void Road::makeGraph() {
  for (const char* line : kGraphLines) host_->run(line);
  const vesk::SceneNodePtr node = host_->session().scene().find("g");
  graph_ = ORV_v1::Container::getFromUUID(node->uuid().c_str());
}

orvUI_v1::CommandHook& Road::edits() { return *orvuilib::HookRegistry::commandHook(); }

orvUI_v1::AppServicesHook& Road::services() { return *orvuilib::HookRegistry::appServicesHook(); }

void Road::runIdleLines() { host_->session().runIdleLines(); }

std::string Road::stored() const {
  return orvlib::writeGraph(static_cast<const orvlib::ContainerObject&>(*graph_));
}

std::vector<std::string> Road::takeLines() {
  std::vector<std::string> lines;
  journal_.clear();
  for (std::string line; std::getline(journal_, line);) {
    if (!line.starts_with("//")) lines.push_back(line);
  }
  return lines;
}

std::string Road::replayed() {
  const std::string scene = files_.path("replay/scene");
  const ProgramRun run =
      runVesk({"--batch", "--keep-going", "--published", files_.path("replay/published"), "--prefs",
               files_.path("replay/preferences"), files_.path("journal.vesk"), "-c",
               "file -saveAs \"" + scene + "\""},
              {.folder = files_.path("replay")});
  EXPECT_NE(run.status, -1) << run.err;
  const std::string text = readWholeFile(scene);
  const std::size_t begin = text.find("vesk-graph ");
  const std::size_t end = text.rfind("\nend 1\n");
  EXPECT_NE(begin, text.npos) << run.err;
  return begin < end && end != text.npos ? text.substr(begin, end - begin) : std::string();
}

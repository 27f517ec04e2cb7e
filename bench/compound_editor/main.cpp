// What the compound editor costs, offscreen: opening a level, painting it, panning and zooming,
// selecting and moving. compound_editor [NODES...]

#include <QApplication>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <functional>
#include <vector>

#include "bench/compound_editor/World.h"
#include "standalone/graph/model/ContainerObject.h"

namespace {

/// Of the processor: other programs may be busy too.
double now() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double milliseconds(const std::function<void()>& work) {
  const double start = now();
  work();
  return now() - start;
}

void print(const char* what, double time) { std::printf("  %-44s %9.2f ms\n", what, time); }

void printFrames(const char* what, std::vector<double> frames) {
  std::ranges::sort(frames);
  std::printf("  %-44s %9.2f ms  %9.2f ms\n", what, frames[frames.size() / 2],
              frames[frames.size() * 95 / 100]);
}

std::vector<double> panFrames(orvuilib::Canvas& canvas, int count) {
  std::vector<double> frames;
  for (int i = 0; i < count; ++i) {
    frames.push_back(milliseconds([&canvas, i] {
      canvas.panBy({std::cos(i * 0.3) * 23, std::sin(i * 0.3) * 17});
      canvas.repaint();
    }));
  }
  return frames;
}

std::vector<double> zoomFrames(orvuilib::Canvas& canvas, int count) {
  std::vector<double> frames;
  for (int i = 0; i < count; ++i) {
    frames.push_back(milliseconds([&canvas, i] {
      canvas.setZoom(canvas.zoom() * (i / 5 % 2 ? 1.03 : 1 / 1.03), {800, 500});
      canvas.repaint();
    }));
  }
  return frames;
}

/// About a hundred nodes of the grid.
void showAHundred(orvuilib::Canvas& canvas) {
  canvas.setZoom(0.85, {});
  canvas.centreOn({3000, 2000});
  canvas.repaint();
}

void measureViews(orvuilib::CompoundEditorWidget& editor) {
  orvuilib::Canvas& canvas = editor.canvas();
  editor.sendKeyEvent(Qt::Key_A, {});
  printFrames("pan, everything in view", panFrames(canvas, 40));
  printFrames("zoom, everything in view", zoomFrames(canvas, 20));
  showAHundred(canvas);
  printFrames("pan, about a hundred nodes in view", panFrames(canvas, 200));
  std::printf("  (%zu nodes and %zu wires drawn last)\n", canvas.lastDrawn().boxes,
              canvas.lastDrawn().wires);
  printFrames("zoom, about a hundred nodes in view", zoomFrames(canvas, 100));
}

void selectFirst(orvuilib::CompoundEditorWidget& editor, World& world, int count) {
  auto list = ORV_v1::NodeList::createNew(nullptr);
  const auto& nodes = world.top()->asCompound()->getChildNodes();
  for (int i = 0; i < count; ++i) list->add(nodes[static_cast<unsigned>(i)]);
  editor.setSelectedNodes(list);
}

void measureEdits(orvuilib::CompoundEditorWidget& editor, World& world) {
  showAHundred(editor.canvas());
  std::vector<double> frames;
  for (int i = 0; i < 100; ++i) {
    frames.push_back(milliseconds([&] {
      world.run("orvNode g /add" + std::to_string(200 + i) + " -setPortDefaultValues b " +
                std::to_string(i + 1));
      QApplication::processEvents();
    }));
  }
  printFrames("a value set, and painted", frames);
  print("select all", milliseconds([&] { editor.sendKeyEvent(Qt::Key_A, Qt::ControlModifier); }));
  selectFirst(editor, world, 500);
  print("500 nodes moved", milliseconds([&] { editor.sendKeyEvent(Qt::Key_Right, {}); }));
  print("undo of it", milliseconds([&] { world.run("undo"); }));
  editor.sendKeyEvent(Qt::Key_A, Qt::ControlModifier);
  print("everything deleted", milliseconds([&] { editor.sendKeyEvent(Qt::Key_Delete, {}); }));
  print("undo of it", milliseconds([&] { world.run("undo"); }));
}

void measure(int nodes) {
  World world(nodes);
  orvuilib::CompoundEditorWidget editor(nullptr);
  editor.resize(1600, 1030);
  editor.show();
  QApplication::processEvents();
  std::printf("%d nodes, %d wires\n", nodes, 2 * nodes - 2);
  print("opened", milliseconds([&] { editor.editCompound(world.top()); }));
  print("first frame", milliseconds([&] { editor.canvas().repaint(); }));
  measureViews(editor);
  measureEdits(editor, world);
}

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  std::vector<int> sizes;
  for (int i = 1; i < argc; ++i) sizes.push_back(std::max(500, std::atoi(argv[i])));
  if (sizes.empty()) sizes = {1000, 5000, 20000};
  for (const int size : sizes) measure(size);
}

// What the compound editor costs, offscreen: opening a level, painting it, panning and zooming,
// selecting, moving and editing. compound_editor [NODES...]

#include <QApplication>
#include <QMouseEvent>
#include <algorithm>
#include <cmath>

#include "bench/compound_editor/Report.h"
#include "bench/compound_editor/World.h"
#include "standalone/graph/model/ContainerObject.h"

namespace {

using orvuilib::BoxItem;

/// One editor of one graph.
class Measuring {
 public:
  Measuring(Report& report, int nodes) : report_(report), world_(nodes), editor_(nullptr) {
    editor_.resize(1600, 1030);
    editor_.show();
    QApplication::processEvents();
    report.begin(nodes);
  }

  void run() {
    report_.add("open a level", milliseconds([&] { editor_.editCompound(world_.top()); }));
    report_.add("first frame", milliseconds([&] { paint(); }));
    views();
    edits();
    hover();
    drag();
    everything();
  }

 private:
  orvuilib::Canvas& canvas() { return editor_.canvas(); }
  void paint() { canvas().repaint(); }

  /// About a hundred nodes of the grid.
  void showAHundred() {
    canvas().setZoom(0.85, {});
    canvas().centreOn({3000, 2000});
    QApplication::processEvents();
  }

  std::vector<double> frames(int count, const std::function<void(int)>& step) {
    std::vector<double> times;
    for (int i = 0; i < count; ++i) times.push_back(milliseconds([&] { step(i); }));
    return times;
  }

  void pan(const char* what, int count) {
    report_.addFrames(what, frames(count, [this](int i) {
                        canvas().panBy({std::cos(i * 0.3) * 23, std::sin(i * 0.3) * 17});
                        paint();
                      }));
  }
  void zoom(const char* what, int count) {
    report_.addFrames(what, frames(count, [this](int i) {
                        const double factor = i / 5 % 2 ? 1.03 : 1 / 1.03;
                        canvas().setZoom(canvas().zoom() * factor, {800, 500});
                        paint();
                      }));
  }

  void views() {
    editor_.sendKeyEvent(Qt::Key_A, {});
    pan("pan, everything in view", 40);
    zoom("zoom, everything in view", 20);
    showAHundred();
    const auto whole = frames(40, [this](int) {
      canvas().update();
      paint();
    });
    report_.addFrames("about a hundred nodes in view, all anew", whole);
    report_.add("  wires among them (a count)", static_cast<double>(canvas().lastDrawn().wires));
    pan("pan, about a hundred nodes in view", 200);
    zoom("zoom, about a hundred nodes in view", 100);
  }

  std::vector<BoxItem*> inView() {
    std::vector<BoxItem*> boxes;
    editor_.scene().boxes().search(canvas().visibleArea(), [&boxes](BoxItem& box) {
      if (box.kind == orvuilib::BoxKind::Node) boxes.push_back(&box);
    });
    return boxes;
  }

  void edits() {
    showAHundred();
    const auto boxes = inView();
    std::vector<std::string> lines;
    for (const BoxItem* box : boxes) {
      lines.push_back("orvNode g " + box->node->fullPath() + " -setPortDefaultValues b 7");
    }
    report_.addFrames("a value of a node in view set, and painted",
                      frames(static_cast<int>(lines.size()), [&](int i) {
                        world_.run(lines[static_cast<std::size_t>(i)]);
                        QApplication::processEvents();
                      }));
    if (canvas().lastDrawn().boxes == 0) std::printf("nothing was painted\n");
  }

  void send(QEvent::Type type, const QPointF& point, Qt::MouseButton button) {
    const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, point, canvas().mapToGlobal(point),
                      type == QEvent::MouseMove ? Qt::NoButton : button, held, Qt::NoModifier);
    QApplication::sendEvent(&canvas(), &event);
    QApplication::processEvents();
  }

  void hover() {
    report_.addFrames("pointer moved over nodes and wires", frames(200, [this](int i) {
                        send(QEvent::MouseMove, {200 + i * 5.0, 150 + i * 3.0}, Qt::NoButton);
                      }));
  }

  /// The nodes that are nearest to the middle of the view.
  void selectNearest(std::size_t count) {
    std::vector<BoxItem*> boxes;
    editor_.scene().forEachBox([&boxes](BoxItem& box) { boxes.push_back(&box); });
    std::ranges::sort(boxes, {}, [centre = canvas().centre()](const BoxItem* box) {
      return (box->bounds.center() - centre).manhattanLength();
    });
    auto list = ORV_v1::NodeList::createNew(nullptr);
    for (std::size_t i = 0; i < std::min(count, boxes.size()); ++i) {
      list->add(orvuilib::EditSession::handle(*boxes[i]->node));
    }
    editor_.setSelectedNodes(list);
  }

  void drag() {
    showAHundred();
    selectNearest(500);
    QApplication::processEvents();
    const BoxItem* held = editor_.scene().selectedBoxes().front();
    const QPointF start = canvas().toWidget(held->bounds.topLeft() + QPointF(40, 10));
    send(QEvent::MouseButtonPress, start, Qt::LeftButton);
    report_.addFrames("500 nodes dragged, each mouse move", frames(40, [&](int i) {
                        const QPointF by(12 + i * 3, 12 + i * 2);
                        send(QEvent::MouseMove, start + by, Qt::LeftButton);
                      }));
    report_.add("and let go", milliseconds([&] {
                  send(QEvent::MouseButtonRelease, start + QPointF(130, 90), Qt::LeftButton);
                }));
    report_.add("undo of it", milliseconds([&] {
                  world_.run("undo");
                  QApplication::processEvents();
                }));
  }

  void everything() {
    const auto painted = [this](const std::function<void()>& work) {
      return milliseconds([&] {
        work();
        QApplication::processEvents();
      });
    };
    report_.add("select all",
                painted([&] { editor_.sendKeyEvent(Qt::Key_A, Qt::ControlModifier); }));
    report_.add("delete everything", painted([&] { editor_.sendKeyEvent(Qt::Key_Delete, {}); }));
    report_.add("undo of the delete", painted([&] { world_.run("undo"); }));
    report_.add("  times the delete",
                report_.last("undo of the delete") / report_.last("delete everything"));
  }

  Report& report_;
  World world_;
  orvuilib::CompoundEditorWidget editor_;
};

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  std::vector<int> sizes;
  for (int i = 1; i < argc; ++i) sizes.push_back(std::max(500, std::atoi(argv[i])));
  if (sizes.empty()) sizes = {1000, 5000, 20000};
  Report report;
  for (const int size : sizes) Measuring(report, size).run();
  report.print();
}

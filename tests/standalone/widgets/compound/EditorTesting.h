#pragma once

#include <QMenu>
#include <QPointer>
#include <QTest>

#include "hook/orvVeskCommandHook.h"
#include "plugin/orvChangeBracketCmd.h"
#include "standalone/widgets/compound/CompoundEditorWidget.h"
#include "standalone/widgets/compound/scene/Placement.h"
#include "tests/commands/CommandTesting.h"

/// A compound editor that shows the graph "g", with the module's hook between them. Gestures are
/// made with real events; what comes of them is read from the lines that were run.
class EditorTest : public CommandTest {
 protected:
  using Lines = hosttest::Texts;

  EditorTest() {
    host.session().registry().add({"orvChangeBracket",
                                   orvChangeBracketCmd::creator,
                                   orvChangeBracketCmd::createSyntax(),
                                   nullptr,
                                   {}});
    editor = std::make_unique<orvuilib::CompoundEditorWidget>(nullptr);
    editor->resize(1000, 700);
    editor->show();
    QApplication::setActiveWindow(editor.get());
    host.takeEchoes();
    host.session().undoQueue().clear();
  }

  /// Shows the graph at a zoom of 1, with the scene's origin at the canvas' middle.
  void open() {
    editor->editCompound(graph.getTopNode());
    home();
  }
  void home() {
    canvas().setZoom(1, {});
    canvas().centreOn({0, 0});
    host.takeEchoes();
  }

  /// Adds a node of that type at a place, by lines.
  void add(const char* type, const char* name, int x, int y) {
    const std::string line = std::string("orvCompound g \"/\" -addNode ") + type;
    const std::string made = host.run(line);
    const std::string given = made.substr(2, made.size() - 4);
    if (given != name) {
      host.run("orvCompound g \"/\" -renameNode " + given + " " + name);
    }
    host.run("orvNode g \"/" + std::string(name) + "\" -setMetaData editor.position \"" +
             std::to_string(x) + "," + std::to_string(y) + "\"");
    host.takeEchoes();
    host.session().undoQueue().clear();
  }

  orvuilib::Canvas& canvas() { return editor->canvas(); }
  const orvuilib::LevelScene& scene() { return editor->scene(); }

  orvlib::NodeObject* node(const std::string& path) {
    return static_cast<orvlib::ContainerObject&>(graph).findNode(path);
  }
  orvuilib::BoxItem* box(const std::string& name) { return scene().find(node("/" + name)); }

  QPoint at(const QPointF& scenePoint) { return canvas().toWidget(scenePoint).toPoint(); }
  QPoint titleOf(const std::string& name) {
    return at(box(name)->bounds.topLeft() + QPointF(box(name)->bounds.width() / 2, 10));
  }

  /// Where the dot of a port is.
  QPoint dotOf(const orvuilib::BoxItem& its, const std::string& port) {
    for (const orvuilib::PortSlot& slot : its.portSlots) {
      if (slot.port->name() == port) return at(orvuilib::anchorOf(its, slot));
    }
    ADD_FAILURE() << "no port " << port;
    return {};
  }
  QPoint dotOf(const std::string& name, const std::string& port) { return dotOf(*box(name), port); }

  void click(const QPoint& point, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(&canvas(), Qt::LeftButton, modifiers, point);
  }
  void drag(const QPoint& from, const QPoint& to, Qt::KeyboardModifiers modifiers = {},
            Qt::MouseButton button = Qt::LeftButton) {
    press(from, modifiers, button);
    moveTo(from + (to - from) / 2, button);
    moveTo(to, button);
    QTest::mouseRelease(&canvas(), button, modifiers, to);
  }
  void press(const QPoint& point, Qt::KeyboardModifiers modifiers = {},
             Qt::MouseButton button = Qt::LeftButton) {
    QTest::mousePress(&canvas(), button, modifiers, point);
  }

  /// Unlike that of QTest, with the button held.
  void moveTo(const QPoint& point, Qt::MouseButton button = Qt::LeftButton) {
    QMouseEvent event(QEvent::MouseMove, point, canvas().mapToGlobal(point), Qt::NoButton, button,
                      Qt::NoModifier);
    QApplication::sendEvent(&canvas(), &event);
  }
  void hover(const QPoint& point) { moveTo(point, Qt::NoButton); }
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&canvas(), key, modifiers);
  }

  QPlainTextEdit* field() { return canvas().findChild<QPlainTextEdit*>("inlineEditor"); }

  void rightClick(const QPoint& point) { QTest::mouseClick(&canvas(), Qt::RightButton, {}, point); }

  /// The context menu that is open; null when none is.
  static QMenu* contextMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

  /// An item of the open menu or of a menu in it, without its key; null when there is none.
  static QAction* item(const QString& text, const QMenu* menu = contextMenu()) {
    if (!menu) return nullptr;
    for (QAction* action : menu->actions()) {
      if (action->text().section(QLatin1Char('\t'), 0, 0) == text) return action;
      QAction* below = action->menu() ? item(text, action->menu()) : nullptr;
      if (below) return below;
    }
    return nullptr;
  }

  /// Chooses an item of the open menu, which closes.
  static void choose(const QString& text) {
    QPointer<QMenu> open = contextMenu();
    QAction* action = item(text);
    ASSERT_TRUE(action) << text.toStdString();
    EXPECT_TRUE(action->isEnabled()) << text.toStdString();
    action->trigger();
    if (open) open->close();
  }

  orvuilib::SearchList* menu(const char* name = "nodeMenu") {
    return static_cast<orvuilib::SearchList*>(canvas().findChild<QWidget*>(name));
  }

  /// The names of what is selected, in its order.
  Lines selected() {
    ORV_v1::AddRefWrapper<ORV_v1::NodeList> nodes;
    Lines names;
    if (!editor->getSelectedNodes(nodes)) return names;
    for (const auto& each : *nodes) names.emplace_back(each->getName());
    return names;
  }

  /// The lines that were echoed since; there must be one undo step, which gives the graph back and
  /// forth as it was.
  Lines oneStep(const std::string& before) {
    const Lines lines = host.takeEchoes();
    const std::string after = stored();
    EXPECT_NE(before, after);
    EXPECT_EQ(host.steps().size(), 1u) << testing::PrintToString(host.steps());
    undo();
    EXPECT_EQ(stored(), before) << "undo";
    redo();
    EXPECT_EQ(stored(), after) << "redo";
    host.takeEchoes();
    return lines;
  }

  orvVeskCommandHook hook;
  std::unique_ptr<orvuilib::CompoundEditorWidget> editor;
};

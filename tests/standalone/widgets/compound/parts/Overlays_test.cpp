#include "standalone/widgets/compound/parts/Overlays.h"

#include "standalone/widgets/colour/ColourDialog.h"
#include "tests/standalone/widgets/compound/EditorTesting.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What opens over the canvas, and what becomes of it when something else happens meanwhile.
class OverlaysTest : public EditorTest {
 protected:
  OverlaysTest() {
    add("core::math::add", "a", -300, -100);
    add("core::math::add", "b", 0, -100);
    host.run("orvCompound g \"/\" -create inner");
    host.run("orvNode g /inner -setMetaData editor.position \"0,150\"");
    host.takeEchoes();
    open();
  }

  void run(const std::string& line) {
    host.run(line);
    host.takeEchoes();
  }
  void rename() {
    key(Qt::Key_Escape);
    click(titleOf("a"));
    key(Qt::Key_F2);
    ASSERT_TRUE(field()->isVisible());
    QTest::keyClicks(field(), "other");
  }
  void openMenuOfWire() {
    drag(dotOf("a", "result"), at({-60, 60}));
    ASSERT_TRUE(menu()->isVisible());
  }
  void openContextMenu() {
    rightClick(titleOf("a"));
    ASSERT_TRUE(contextMenu());
  }
  void openTypeList() {
    click(titleOf("inner"));
    key(Qt::Key_I, Qt::ShiftModifier);
    ASSERT_TRUE(menu("typeList")->isVisible());
  }
  void openFind(const char* typed) {
    key(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(&menu("findList")->field(), typed);
  }
  void wheel(QWidget& over, const QPoint& point) {
    QWheelEvent turn(point, over.mapToGlobal(QPointF(point)), {}, {0, 240}, {}, {},
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&over, &turn);
  }
  bool nothingIsOpen() {
    return !field()->isVisible() && !menu()->isVisible() && !menu("typeList")->isVisible() &&
           !contextMenu() && !QApplication::activeModalWidget();
  }
};

TEST_F(OverlaysTest, AFieldGoesAlongWithWhatItIsFor) {
  rename();
  const auto place = [this] { return canvas().toWidget(box("a")->bounds.topLeft()).toPoint(); };
  EXPECT_EQ(field()->pos(), place());
  canvas().panBy({60, 40});
  EXPECT_EQ(field()->pos(), place());
  wheel(canvas(), {400, 300});
  EXPECT_EQ(field()->pos(), place());
  run("orvNode g /a -setMetaData editor.position \"-200,-60\"");
  EXPECT_EQ(field()->pos(), place());
  editor->resize(700, 500);
  EXPECT_TRUE(canvas().rect().contains(field()->geometry()));
  canvas().panBy({-2000, 0});
  EXPECT_EQ(field()->x(), 0);
  QTest::keyClick(field(), Qt::Key_Return);
  EXPECT_THAT(host.takeEchoes(),
              ElementsAre("orvCompound \"g\" \"/\" -renameNode \"a\" \"other\""));
}

TEST_F(OverlaysTest, AFieldClosesWhenWhatItIsForGoesAndWhenTheLevelIsLocked) {
  rename();
  run("orvCompound g \"/\" -removeNode b");
  EXPECT_TRUE(field()->isVisible());
  run("orvCompound g \"/\" -removeNode a");
  EXPECT_TRUE(nothingIsOpen());
  EXPECT_TRUE(canvas().hasFocus());
  undo();
  host.takeEchoes();
  rename();
  run("orvCompound g \"/\" -setMetaData locked true");
  EXPECT_TRUE(nothingIsOpen());
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
}

TEST_F(OverlaysTest, AFieldStaysWhileAMenuOrAnotherWindowHasTheFocus) {
  for (const Qt::FocusReason reason : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason}) {
    rename();
    QFocusEvent out(QEvent::FocusOut, reason);
    QApplication::sendEvent(field(), &out);
    EXPECT_TRUE(field()->isVisible());
    EXPECT_EQ(field()->toPlainText(), "other");
    QTest::keyClick(field(), Qt::Key_Escape);
    key(Qt::Key_Tab);
    QApplication::sendEvent(&menu()->field(), &out);
    EXPECT_TRUE(menu()->isVisible());
    QTest::keyClick(&menu()->field(), Qt::Key_Escape);
  }
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
}

TEST_F(OverlaysTest, AClickElsewhereTakesTheTextOverAndClosesTheMenu) {
  rename();
  click(at({200, 250}));
  EXPECT_FALSE(field()->isVisible());
  EXPECT_THAT(host.takeEchoes(),
              ElementsAre("orvCompound \"g\" \"/\" -renameNode \"a\" \"other\""));
  QLineEdit other(editor.get());
  other.show();
  key(Qt::Key_Tab);
  other.setFocus();
  EXPECT_FALSE(menu()->isVisible());
  EXPECT_TRUE(other.hasFocus());
}

TEST_F(OverlaysTest, TheMenuOfNodesGoesAlongAndClosesWithItsWire) {
  openMenuOfWire();
  const QPoint before = menu()->pos();
  canvas().panBy({-60, 0});
  EXPECT_EQ(menu()->pos(), before - QPoint(60, 0));
  editor->resize(500, 400);
  EXPECT_TRUE(canvas().rect().contains(menu()->geometry()));
  run("orvCompound g \"/\" -removeNode b");
  EXPECT_TRUE(menu()->isVisible());
  run("orvCompound g \"/\" -removeNode a");
  EXPECT_TRUE(nothingIsOpen());
}

TEST_F(OverlaysTest, MenusAreAsHighAsTheirLinesAndNeverHalfALine) {
  for (const QSize& size : {QSize(1000, 700), QSize(300, 200), QSize(160, 150)}) {
    editor->resize(size);
    key(Qt::Key_Tab);
    EXPECT_TRUE(canvas().rect().contains(menu()->geometry()));
    const auto* list = menu()->findChild<QListView*>();
    EXPECT_EQ(list->height() % list->sizeHintForRow(0), 0);
    QTest::keyClicks(&menu()->field(), "no such node");
    EXPECT_FALSE(list->isVisible());
    EXPECT_EQ(menu()->findChild<QLabel*>()->text(), "Nothing fits");
    QTest::keyClick(&menu()->field(), Qt::Key_Escape);
  }
}

TEST_F(OverlaysTest, ClicksAndTheWheelOnAMenuDoNotReachTheCanvas) {
  click(titleOf("b"));
  canvas().panBy({0, 0});
  key(Qt::Key_Tab);
  const qreal zoom = canvas().zoom();
  QTest::mouseClick(menu(), Qt::LeftButton, {}, {2, 2});
  QTest::mouseClick(menu(), Qt::RightButton, {}, {2, 2});
  wheel(*menu(), {2, 2});
  auto* list = menu()->findChild<QListView*>();
  for (int i = 0; i < 200; ++i) wheel(*list->viewport(), {20, 20});
  EXPECT_EQ(canvas().zoom(), zoom);
  EXPECT_TRUE(menu()->isVisible());
  EXPECT_THAT(selected(), ElementsAre("b"));
  EXPECT_FALSE(contextMenu());
}

TEST_F(OverlaysTest, AClickOnALineChoosesIt) {
  key(Qt::Key_Tab);
  QTest::keyClicks(&menu()->field(), "negate");
  auto* list = menu()->findChild<QListView*>();
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, {30, 10});
  EXPECT_TRUE(node("/negate"));
  EXPECT_FALSE(menu()->isVisible());
  host.takeEchoes();
}

TEST_F(OverlaysTest, AContextMenuClosesWhenItsNodeGoesOrSomethingElseIsSelected) {
  openContextMenu();
  run("orvNode g /a -setPortDefaultValues b 2");
  EXPECT_TRUE(contextMenu());
  run("orvCompound g \"/\" -removeNode a");
  EXPECT_TRUE(nothingIsOpen());
  undo();
  openContextMenu();
  auto list = ORV_v1::NodeList::createNew(nullptr);
  list->add(ORV_v1::AddRefWrapper<ORV_v1::Node>(node("/b")));
  editor->setSelectedNodes(list);
  EXPECT_TRUE(nothingIsOpen());
  openContextMenu();
  run("orvCompound g \"/\" -setMetaData locked true");
  EXPECT_TRUE(nothingIsOpen());
}

TEST_F(OverlaysTest, AMenuOfAWireClosesWithTheWire) {
  run("orvConnect g /a.result /b.a");
  const auto* wire = box("b")->arriving.front();
  rightClick(at((wire->start + wire->end) / 2));
  ASSERT_TRUE(item("Remove wire"));
  run("orvConnect g -disconnect /a.result /b.a");
  EXPECT_TRUE(nothingIsOpen());
}

TEST_F(OverlaysTest, FindSearchesAnewWhenTheGraphHasChanged) {
  openFind("name:a");
  ASSERT_EQ(menu("findList")->lineCount(), 1);
  run("orvCompound g \"/\" -renameNode a sum");
  run("orvCompound g \"/\" -renameNode b again");
  QTest::keyClick(&menu("findList")->field(), Qt::Key_Return);
  EXPECT_EQ(menu("findList")->line(0).text, "/again");
  EXPECT_THAT(selected(), IsEmpty());
  QTest::keyClick(&menu("findList")->field(), Qt::Key_Return);
  EXPECT_THAT(selected(), ElementsAre("again"));
}

TEST_F(OverlaysTest, FindNextGoesOnFromWhatWasFoundLast) {
  run("orvCompound g /inner -addNode core::math::add");
  openFind("type:add");
  ASSERT_EQ(menu("findList")->lineCount(), 3);
  key(Qt::Key_F3);
  EXPECT_THAT(selected(), ElementsAre("b"));
  run("orvCompound g \"/\" -removeNode a");
  key(Qt::Key_F3);
  EXPECT_THAT(editor->breadcrumb().texts(), ElementsAre("g", "/ inner"));
  EXPECT_EQ(menu("findList")->lineCount(), 2);
  key(Qt::Key_F3);
  EXPECT_THAT(selected(), ElementsAre("b"));
}

/// Everything that can be open or going on, by its name.
enum class Open {
  Field,
  NoteField,
  NodeMenu,
  TypeList,
  FindList,
  ContextMenu,
  PortMenu,
  ColourDialog,
  Help,
  Move,
  Wire,
  Band,
  KeyWire
};

class OpenThingsTest : public OverlaysTest, public testing::WithParamInterface<Open> {
 protected:
  void hold(const QPoint& from) {
    press(from);
    moveTo(from + QPoint(40, 30));
  }

  void openIt() {
    switch (GetParam()) {
      case Open::Field:
        return rename();
      case Open::NoteField:
        return key(Qt::Key_N, Qt::ShiftModifier);
      case Open::NodeMenu:
        return openMenuOfWire();
      case Open::TypeList:
        return openTypeList();
      case Open::FindList:
        return openFind("a");
      case Open::ContextMenu:
        return openContextMenu();
      case Open::PortMenu:
        return rightClick(dotOf("a", "result"));
      case Open::ColourDialog:
        key(Qt::Key_N, Qt::ShiftModifier);
        QTest::keyClick(field(), Qt::Key_Return);
        key(Qt::Key_Menu);
        return choose("Colour...");
      case Open::Help:
        return key(Qt::Key_F1);
      case Open::Move:
        return hold(titleOf("a"));
      case Open::Wire:
        return hold(dotOf("a", "result"));
      case Open::Band:
        return hold(at({-350, -180}));
      case Open::KeyWire:
        click(titleOf("a"));
        key(Qt::Key_Right, Qt::ShiftModifier);
        return key(Qt::Key_C);
    }
  }

  /// The keys and the mouse go on as if it were still there.
  void goOn() {
    QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, at({0, 0}));
    for (const Qt::Key each :
         {Qt::Key_F3, Qt::Key_C, Qt::Key_Return, Qt::Key_Menu, Qt::Key_Escape}) {
      QWidget* focus = QApplication::focusWidget();
      QTest::keyClick(focus ? focus : &canvas(), each);
    }
    canvas().grab();
  }
};

TEST_P(OpenThingsTest, ItsNodeMayGo) {
  openIt();
  host.run("orvCompound g \"/\" -removeNode a -removeNode inner");
  if (node("/")->compound()->annotations().count() > 0) {
    host.run("orvCompound g \"/\" -removeAnnotation note");
  }
  EXPECT_FALSE(field()->isVisible() || menu()->isVisible() || contextMenu());
  EXPECT_FALSE(QApplication::activeModalWidget());
  goOn();
  host.takeEchoes();
}

TEST_P(OpenThingsTest, TheLevelMayBeLeft) {
  openIt();
  host.takeEchoes();
  ASSERT_TRUE(editor->diveInCompound(ORV_v1::AddRefWrapper<ORV_v1::Compound>(
      static_cast<orvlib::ContainerObject&>(graph).findCompound("/inner"))));
  EXPECT_TRUE(nothingIsOpen());
  goOn();
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
}

TEST_P(OpenThingsTest, ThePanelMayBeHidden) {
  openIt();
  host.takeEchoes();
  editor->hide();
  EXPECT_TRUE(nothingIsOpen());
  editor->show();
  goOn();
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
}

TEST_P(OpenThingsTest, ThePanelMayGo) {
  // Menus are windows, but the editor's all the same.
  const auto others = std::ranges::count_if(QApplication::allWidgets(), [this](QWidget* each) {
    while (each && each != editor.get()) each = each->parentWidget();
    return !each;
  });
  openIt();
  editor.reset();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(QApplication::activePopupWidget());
  EXPECT_FALSE(QApplication::activeModalWidget());
  EXPECT_EQ(QApplication::allWidgets().size(), others);
  host.run("orvCompound g \"/\" -removeNode a");
  host.takeEchoes();
}

TEST_P(OpenThingsTest, TheGraphMayGo) {
  openIt();
  host.run("delete g");
  host.session().undoQueue().clear();
  EXPECT_TRUE(editor->currentCompound() == nullptr);
  EXPECT_TRUE(nothingIsOpen());
  EXPECT_FALSE(menu("findList")->isVisible());
  goOn();
  host.takeEchoes();
}

INSTANTIATE_TEST_SUITE_P(All, OpenThingsTest,
                         testing::Values(Open::Field, Open::NoteField, Open::NodeMenu,
                                         Open::TypeList, Open::FindList, Open::ContextMenu,
                                         Open::PortMenu, Open::ColourDialog, Open::Help, Open::Move,
                                         Open::Wire, Open::Band, Open::KeyWire));

}  // namespace

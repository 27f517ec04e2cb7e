#include "standalone/widgets/compound/view/Canvas.h"

#include <QHelpEvent>
#include <QToolTip>

#include "standalone/widgets/compound/scene/ShownValue.h"
#include "tests/standalone/widgets/compound/view/CanvasTesting.h"

namespace {

using orvuilib::Hit;
using testing::HasSubstr;

bool covers(const QRegion& region, const QRect& area) {
  return QRegion(area).subtracted(region).isEmpty();
}

/// "a" gives to "b", "c" is by itself; far from one another.
class CanvasPaintingTest : public CanvasTest {
 protected:
  CanvasPaintingTest() {
    add("core::math::add", "a", -400, -250);
    add("core::math::add", "b", -150, -250);
    add("core::math::add", "c", 280, 180);
    host.run("orvConnect g /a.result /b.a");
    host.takeEchoes();
    open();
    QApplication::processEvents();
  }

  orvuilib::PortSlot slotOf(const std::string& name, const std::string& port) {
    for (const auto& slot : box(name)->portSlots) {
      if (slot.port->name() == port) return slot;
    }
    ADD_FAILURE() << "no port " << port;
    return {};
  }
  QPointF anchor(const std::string& name, const std::string& port) {
    return anchorOf(*box(name), slotOf(name, port));
  }
  const orvuilib::ValueLabel& value(const std::string& name) { return box(name)->values.at(0); }
};

TEST_F(CanvasPaintingTest, HoveringPaintsWhatItLeavesAndWhatItComesTo) {
  PaintedRegion painted(canvas());
  hover(titleOf("a"));
  const QRegion first = painted.take();
  EXPECT_TRUE(covers(first, seen(box("a")->bounds)));
  EXPECT_FALSE(first.intersects(seen(box("c")->bounds)));
  hover(titleOf("c"));
  const QRegion second = painted.take();
  EXPECT_TRUE(covers(second, seen(box("a")->bounds)));
  EXPECT_TRUE(covers(second, seen(box("c")->bounds)));
  EXPECT_FALSE(second.intersects(QRect(at({0, -50}), QSize(20, 20))));
  EXPECT_EQ(differenceOf(picture(), pictureAnew()), "");
}

TEST_F(CanvasPaintingTest, AnEditPaintsItsNodeAndWhatWasHoveredAlone) {
  hover(titleOf("c"));
  PaintedRegion painted(canvas());
  painted.take();
  host.run("orvNode g /a -setPortDefaultValues b 5");
  const QRegion region = painted.take();
  EXPECT_TRUE(covers(region, seen(box("a")->bounds)));
  EXPECT_FALSE(region.intersects(QRect(at({0, -50}), QSize(20, 20))));
  EXPECT_FALSE(region.intersects(seen(box("b")->bounds.adjusted(20, 0, 0, 0))));
}

TEST_F(CanvasPaintingTest, FarWatchPointsDoNotPaintWhatLiesBetweenThem) {
  watch("a", "result");
  watch("c", "result");
  PaintedRegion painted(canvas());
  painted.take();
  host.run("orvNode g /a -setPortDefaultValues b 5");
  const QRegion one = painted.take();
  EXPECT_TRUE(covers(one, seen(value("a").bounds)));
  EXPECT_FALSE(one.intersects(seen(box("c")->bounds)));
  host.run("orvNode g /c -setPortDefaultValues b 0.5");
  EXPECT_TRUE(covers(painted.take(), seen(value("c").bounds)));
  EXPECT_EQ(value("c").text, "0.5");
  EXPECT_EQ(differenceOf(picture(), pictureAnew()), "");
}

TEST_F(CanvasPaintingTest, AnEditOfOneNodePaintsTheSameInEveryGraph) {
  QRegion regions[2];
  int more = 100;
  int made = 0;
  for (QRegion& region : regions) {
    host.run("orvChangeBracket g -open");
    for (int i = 0; i < more; ++i) {
      host.run("orvCompound g / -addNode core::math::add");
      host.run("orvNode g /add" + (made ? std::to_string(made) : std::string()) +
               " -setMetaData editor.position " + std::to_string(made % 100 * 200) + "," +
               std::to_string(600 + made / 100 * 120));
      ++made;
    }
    host.run("orvChangeBracket g -close");
    host.takeEchoes();
    home();
    PaintedRegion painted(canvas());
    painted.take();
    host.run("orvNode g /a -setPortDefaultValues b " + std::to_string(more));
    region = painted.take();
    more = 9900;
  }
  EXPECT_EQ(scene().boxCount(), 10003u);
  EXPECT_FALSE(regions[0].isEmpty());
  EXPECT_EQ(regions[0], regions[1]);
}

TEST_F(CanvasPaintingTest, APanShowsWhatPaintingAnewShows) {
  watch("a", "result");
  for (const qreal ratio : {1.0, 1.25, 2.0}) {
    pictureAnew(ratio);
    for (const QPointF& by : {QPointF(40, 24), QPointF(-13, 60), QPointF(100, -72)}) {
      canvas().panBy(by);
      const QImage moved = picture(ratio);
      EXPECT_EQ(differenceOf(moved, pictureAnew(ratio)), "")
          << ratio << ": " << by.x() << ',' << by.y();
    }
  }
}

TEST_F(CanvasPaintingTest, FitsEverythingAndTheSelection) {
  canvas().resize(700, 300);
  key(Qt::Key_A);
  const QImage all = picture();
  for (const char* name : {"a", "b", "c"}) {
    const QRect area = seen(box(name)->bounds);
    EXPECT_TRUE(all.rect().contains(area)) << name;
    EXPECT_NE(all.pixelColor(area.center()), palette().canvas) << name;
  }
  click(titleOf("c"));
  key(Qt::Key_F);
  const QRect area = seen(box("c")->bounds);
  EXPECT_LT((area.center() - canvas().rect().center()).manhattanLength(), 4);
  EXPECT_EQ(picture().pixelColor(area.center() + QPoint(0, area.height() / 2 - 4)), palette().body);
}

TEST_F(CanvasPaintingTest, ShowsAndHidesValues) {
  watch("c", "result");
  EXPECT_EQ(value("c").text, "0");
  const QPointF inside = value("c").bounds.topLeft() + QPointF(4, 8);
  EXPECT_EQ(colourAt(inside), palette().field);
  key(Qt::Key_V);
  EXPECT_NE(colourAt(inside), palette().field);
  key(Qt::Key_V);
  EXPECT_EQ(colourAt(inside), palette().field);
}

TEST_F(CanvasPaintingTest, AValueStandsBesideItsPortAndWhereThereIsNoRoomBelow) {
  watch("c", "result");
  watch("c", "a");
  for (const auto& label : box("c")->values)
    EXPECT_FALSE(label.bounds.intersects(box("c")->bounds));
  EXPECT_LT(box("c")->values.at(0).bounds.right(), box("c")->bounds.left());
  EXPECT_GT(box("c")->values.at(1).bounds.left(), box("c")->bounds.right());
  const int beside = int(box("c")->bounds.right()) + 12;
  add("core::math::add", "near", beside, 180);
  for (const auto& label : box("c")->values) {
    EXPECT_FALSE(label.bounds.intersects(box("near")->bounds));
    EXPECT_FALSE(label.bounds.intersects(box("c")->bounds));
  }
  host.run("orvNode g /near -setMetaData editor.position 900,900");
  EXPECT_GT(box("c")->values.at(1).bounds.left(), box("c")->bounds.right());
}

TEST_F(CanvasPaintingTest, AValueIsShownWithFewDigits) {
  watch("c", "result");
  host.run("orvNode g /c -setPortDefaultValues a 0.65");
  host.run("orvNode g /c -setPortDefaultValues b 0.325");
  EXPECT_EQ(value("c").text, "0.975");
  host.run("orvNode g /c -setPortDefaultValues a 1");
  host.run("orvNode g /c -setPortDefaultValues b 0.3333333");
  EXPECT_EQ(value("c").text, "1.33333");
}

TEST_F(CanvasPaintingTest, PortsThatTakeAWireAreLitWhileItIsMade) {
  add("core::string::length", "s", 280, -100);
  const QPointF beside(0, orvuilib::box::kPortRadius + 3);
  const QColor fitting = colourAt(anchor("c", "a") + beside);
  const QColor other = colourAt(anchor("s", "text"));
  press(dotOf("a", "result"));
  moveTo(at({0, 0}));
  const QColor lit = colourAt(anchor("c", "a") + beside);
  EXPECT_GT(lit.green(), fitting.green() + 20);
  EXPECT_NE(colourAt(anchor("s", "text")), other);
  key(Qt::Key_Escape);
  EXPECT_EQ(colourAt(anchor("c", "a") + beside), fitting);
  QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, at({0, 0}));
}

TEST_F(CanvasPaintingTest, TellsOfWhatIsPointedAt) {
  const auto tipAt = [this](const QPoint& point) {
    QHelpEvent event(QEvent::ToolTip, point, canvas().mapToGlobal(point));
    QApplication::sendEvent(&canvas(), &event);
    return QToolTip::text().toStdString();
  };
  EXPECT_THAT(tipAt(titleOf("a")), HasSubstr("<b>a</b> : core::math::add"));
  EXPECT_THAT(tipAt(dotOf("c", "b")), HasSubstr("<b>b</b> : float"));
  EXPECT_THAT(tipAt(dotOf("c", "b")), HasSubstr("value: 0"));
  const QPointF middle = (anchor("a", "result") + anchor("b", "a")) / 2;
  EXPECT_THAT(tipAt(at(middle)), HasSubstr("/a.result"));
  watch("a", "result");
  EXPECT_THAT(tipAt(dotOf("a", "result")), HasSubstr("last value: 0"));
}

TEST_F(CanvasPaintingTest, AnotherTypeGivesPortAndWireItsColour) {
  host.run("orvCompound g / -createInputPort x float");
  host.run("orvConnect g /.x /c.a");
  host.takeEchoes();
  const auto before = scene().inputs()->leaving.at(0)->colour;
  EXPECT_EQ(before, orvuilib::Theme::typeColour("float").rgb());
  host.run("orvCompound g / -setPortDataType x int");
  host.takeEchoes();
  const auto colour = orvuilib::Theme::typeColour("int").rgb();
  EXPECT_NE(before, colour);
  EXPECT_EQ(scene().inputs()->portSlots.at(0).colour, colour);
  EXPECT_EQ(scene().inputs()->leaving.at(0)->colour, colour);
  EXPECT_EQ(differenceOf(picture(), pictureAnew()), "");
}

TEST_F(CanvasPaintingTest, WhatIsNotPaintedIsNotHit) {
  const QPointF dot = anchor("a", "result");
  const QPointF label = anchor("a", "result") - QPointF(20, 0);
  EXPECT_TRUE(canvas().hitAt(dot).onDot);
  EXPECT_EQ(canvas().hitAt(label).part, Hit::Part::Port);
  canvas().setZoom(0.4, {});
  EXPECT_TRUE(canvas().hitAt(dot).onDot);
  EXPECT_EQ(canvas().hitAt(label).part, Hit::Part::Body);
  canvas().setZoom(0.2, {});
  EXPECT_EQ(canvas().hitAt(dot).part, Hit::Part::Body);
  EXPECT_EQ(canvas().hitAt(box("a")->bounds.topLeft() + QPointF(30, 10)).part, Hit::Part::Body);
}

TEST_F(CanvasPaintingTest, OffersNoPortsWhereNothingCanBeEditedAndSaysSoAtOnce) {
  const QPointF row = addRowOf(*scene().inputs()).center();
  canvas().centreOn(row);
  EXPECT_EQ(canvas().hitAt(row).part, Hit::Part::AddPort);
  EXPECT_TRUE(canvas().readOnly().isEmpty());
  const QImage open = picture();
  host.run("orvCompound g \"/\" -setMetaData locked true");
  host.takeEchoes();
  EXPECT_THAT(canvas().readOnly().toStdString(), HasSubstr("locked"));
  EXPECT_EQ(canvas().hitAt(row).part, Hit::Part::Body);
  EXPECT_NE(picture().copy(QRect(at(row) - QPoint(30, 8), QSize(60, 16))),
            open.copy(QRect(at(row) - QPoint(30, 8), QSize(60, 16))));
  host.run("orvCompound g \"/\" -setMetaData locked false");
  host.takeEchoes();
  EXPECT_TRUE(canvas().readOnly().isEmpty());
  EXPECT_EQ(canvas().hitAt(row).part, Hit::Part::AddPort);
}

TEST_F(CanvasPaintingTest, AStickyNoteLiesAboveNodesAndABackdropBelow) {
  host.run("orvCompound g / -addStickyNote hello -addBackdrop frame");
  host.run("orvCompound g / -setAnnotationMetaDataValue note editor.position \"-400,-250\"");
  host.run("orvCompound g / -setAnnotationMetaDataValue frame editor.position 270,150");
  host.takeEchoes();
  EXPECT_EQ(canvas().hitAt(box("a")->bounds.center()).part, Hit::Part::Note);
  EXPECT_EQ(canvas().hitAt(box("c")->bounds.center()).box, box("c"));
  EXPECT_EQ(colourAt(box("c")->bounds.center() + QPointF(0, 20)), palette().body);
  EXPECT_GT(colourAt(box("a")->bounds.center()).red(), 150);
}

}  // namespace

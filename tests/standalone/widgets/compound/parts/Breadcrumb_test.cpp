#include "standalone/widgets/compound/parts/Breadcrumb.h"

#include "tests/standalone/widgets/compound/EditorTesting.h"

namespace {

using testing::ElementsAre;

/// Three compounds in one another, the innermost of which is shown.
class BreadcrumbTest : public EditorTest {
 protected:
  BreadcrumbTest() {
    host.run("orvCompound g / -create outerLevel");
    host.run("orvCompound g /outerLevel -create middleLevel");
    host.run("orvCompound g /outerLevel/middleLevel -create innermostLevel");
    host.takeEchoes();
    ORV_v1::AddRefWrapper<ORV_v1::Node> level(node("/outerLevel/middleLevel/innermostLevel"));
    editor->editCompound(level);
  }

  const orvuilib::Breadcrumb& bar() { return editor->breadcrumb(); }
  QToolButton* more() { return bar().findChild<QToolButton*>("moreLevels"); }
  std::vector<std::string> shown() {
    std::vector<std::string> texts;
    for (const QString& text : bar().texts()) texts.push_back(text.toStdString());
    return texts;
  }

  /// Nothing that is shown is cut off, and nothing lies on another one.
  void expectWhole() {
    int end = 0;
    for (const auto* button : bar().findChildren<QToolButton*>()) {
      if (!button->isVisible()) continue;
      EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
      end = std::max(end, button->geometry().right());
    }
    EXPECT_LT(end, bar().width());
  }
};

TEST_F(BreadcrumbTest, ShowsAllLevelsWhereThereIsRoom) {
  EXPECT_THAT(shown(), ElementsAre("g", "/ outerLevel", "/ middleLevel", "/ innermostLevel"));
  EXPECT_FALSE(more()->isVisible());
}

TEST_F(BreadcrumbTest, ANarrowOneHasItsForemostLevelsInAMenu) {
  editor->resize(320, 400);
  QApplication::processEvents();
  EXPECT_EQ(bar().width(), 320);
  EXPECT_THAT(shown(), ElementsAre("/ middleLevel", "/ innermostLevel"));
  expectWhole();
  emit more()->menu()->aboutToShow();
  const auto above = more()->menu()->actions();
  ASSERT_EQ(above.size(), 2);
  EXPECT_EQ(above[1]->text(), "/ outerLevel");
  above[1]->trigger();
  EXPECT_THAT(shown(), ElementsAre("g", "/ outerLevel"));
}

TEST_F(BreadcrumbTest, TheLastLevelIsCutAtItsEndOnly) {
  editor->resize(170, 400);
  QApplication::processEvents();
  ASSERT_EQ(shown().size(), 1u);
  EXPECT_TRUE(bar().texts()[0].startsWith("/ inn"));
  EXPECT_TRUE(bar().texts()[0].endsWith(QChar(0x2026)));
  expectWhole();
  editor->resize(1000, 400);
  QApplication::processEvents();
  EXPECT_EQ(shown().size(), 4u);
}

}  // namespace

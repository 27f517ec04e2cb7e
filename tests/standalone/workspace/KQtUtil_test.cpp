#include "platform/OpenVeskUI/KQtUtil.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QGridLayout>
#include <QPointer>
#include <QVBoxLayout>

#include "standalone/workspace/Workspace.h"
#include "tests/support/HostTest.h"

namespace {

TEST(CurrentParent, IsNullWithoutAWindow) { EXPECT_EQ(KQtUtil::getCurrentParent(), nullptr); }

TEST(CurrentParent, IsNullUntilTheWindowNamesOne) {
  const vesk::Workspace workspace;
  EXPECT_EQ(KQtUtil::getCurrentParent(), nullptr);
}

TEST(CurrentParent, IsTheOneThatTheWindowNamedLast) {
  vesk::Workspace workspace;
  QWidget first;
  QWidget second;
  workspace.setCurrentParent(&first);
  EXPECT_EQ(KQtUtil::getCurrentParent(), &first);
  workspace.setCurrentParent(&second);
  EXPECT_EQ(KQtUtil::getCurrentParent(), &second);
}

TEST(CurrentParent, IsNullWhenItsWidgetIsGone) {
  vesk::Workspace workspace;
  {
    QWidget panel;
    workspace.setCurrentParent(&panel);
  }
  EXPECT_EQ(KQtUtil::getCurrentParent(), nullptr);
}

TEST(CurrentParent, IsNullWhenTheWindowIsGone) {
  QWidget panel;
  {
    vesk::Workspace workspace;
    workspace.setCurrentParent(&panel);
  }
  EXPECT_EQ(KQtUtil::getCurrentParent(), nullptr);
}

TEST(KQtUtilDocking, PutsTheChildIntoTheParentsLayout) {
  QWidget parent;
  auto* layout = new QGridLayout(&parent);
  auto* child = new QWidget;
  KQtUtil::addWidgetToVeskLayout(child, &parent, "");
  EXPECT_EQ(parent.layout(), layout);
  EXPECT_EQ(layout->indexOf(child), 0);
}

TEST(KQtUtilDocking, MakesTheParentTheOwner) {
  QPointer<QWidget> child = new QWidget;
  {
    QWidget parent;
    KQtUtil::addWidgetToVeskLayout(child, &parent, "");
    EXPECT_EQ(child->parentWidget(), &parent);
  }
  EXPECT_TRUE(child.isNull());
}

TEST(KQtUtilDocking, GivesAParentWithoutLayoutOneWithoutMargins) {
  QWidget parent;
  auto* child = new QWidget;
  KQtUtil::addWidgetToVeskLayout(child, &parent, "");
  ASSERT_NE(qobject_cast<QVBoxLayout*>(parent.layout()), nullptr);
  EXPECT_EQ(parent.layout()->contentsMargins(), QMargins());
  EXPECT_EQ(parent.layout()->spacing(), 0);
  EXPECT_EQ(parent.layout()->indexOf(child), 0);
}

TEST(KQtUtilDocking, AddsTheNextChildBehindTheFirst) {
  QWidget parent;
  auto* first = new QWidget;
  auto* second = new QWidget;
  KQtUtil::addWidgetToVeskLayout(first, &parent, "");
  KQtUtil::addWidgetToVeskLayout(second, &parent, "");
  EXPECT_EQ(parent.layout()->indexOf(first), 0);
  EXPECT_EQ(parent.layout()->indexOf(second), 1);
}

TEST(KQtUtilDocking, MovesAChildFromItsFormerParent) {
  QWidget former;
  QWidget parent;
  auto* child = new QWidget;
  KQtUtil::addWidgetToVeskLayout(child, &former, "");
  KQtUtil::addWidgetToVeskLayout(child, &parent, "");
  EXPECT_EQ(child->parentWidget(), &parent);
  EXPECT_EQ(former.layout()->count(), 0);
}

TEST(KQtUtilDocking, FillsTheParentWhenItIsShown) {
  QWidget parent;
  auto* child = new QWidget;
  parent.resize(300, 200);
  KQtUtil::addWidgetToVeskLayout(child, &parent, "");
  parent.show();
  QApplication::processEvents();
  EXPECT_TRUE(child->isVisible());
  EXPECT_EQ(child->geometry(), QRect(0, 0, 300, 200));
}

TEST(KQtUtilDocking, NamesTheChild) {
  QWidget parent;
  auto* child = new QWidget;
  KString name;
  ASSERT_TRUE(name.setUTF8("panel \u00e9"));
  EXPECT_STREQ(KQtUtil::addWidgetToVeskLayout(child, &parent, name).asUTF8(), "panel \u00e9");
  EXPECT_EQ(child->objectName(), QString::fromUtf8("panel \u00e9"));
}

TEST(KQtUtilDocking, AnEmptyNameKeepsTheOneThatTheChildHas) {
  QWidget parent;
  auto* child = new QWidget;
  child->setObjectName("former");
  EXPECT_STREQ(KQtUtil::addWidgetToVeskLayout(child, &parent, "").asUTF8(), "former");
  EXPECT_EQ(child->objectName(), "former");
}

TEST(KQtUtilDocking, WithoutChildOrParentNothingIsDocked) {
  QWidget widget;
  EXPECT_EQ(KQtUtil::addWidgetToVeskLayout(nullptr, &widget, "name").length(), 0u);
  EXPECT_EQ(KQtUtil::addWidgetToVeskLayout(&widget, nullptr, "name").length(), 0u);
  EXPECT_EQ(widget.layout(), nullptr);
  EXPECT_TRUE(widget.objectName().isEmpty());
}

TEST(AddedWidget, ThatNobodyWouldOwnIsDeleted) {
  const QPointer<QWidget> child = new QWidget;
  EXPECT_EQ(KQtUtil::addWidgetToVeskLayout(child, nullptr, "").length(), 0u);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(child);
  QWidget owner;
  const QPointer<QWidget> owned = new QWidget(&owner);
  KQtUtil::addWidgetToVeskLayout(owned, nullptr, "");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(owned);
}

}  // namespace

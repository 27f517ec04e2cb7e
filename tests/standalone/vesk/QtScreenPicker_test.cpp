#include "standalone/vesk/QtScreenPicker.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include "standalone/vesk/Gui.h"
#include "tests/support/HiddenDisplay.h"
#include "tests/support/HostTest.h"

namespace {

void fill(QWidget& widget, const QColor& colour) {
  QPalette palette = widget.palette();
  palette.setColor(QPalette::Window, colour);
  widget.setPalette(palette);
  widget.setAutoFillBackground(true);
}

/// A window of one colour, without a frame.
class Patch : public QWidget {
 public:
  Patch(const QRect& place, const QColor& colour) : QWidget(nullptr, Qt::FramelessWindowHint) {
    fill(*this, colour);
    setGeometry(place);
    show();
    vesk::Gui::settle();
  }
};

QWidget* sheet() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() == "screenPicker" && widget->isVisible()) return widget;
  }
  return nullptr;
}

class ScreenPicker : public ::testing::Test {
 protected:
  /// Does something once the sheet covers the screen, as the window system would tell of it.
  std::optional<KColor> pickWhile(const std::function<void(QWidget&)>& act) {
    bool acted = false;
    QTimer::singleShot(0, [&] {
      QWidget* found = sheet();
      if (!found) return;
      acted = true;
      act(*found);
    });
    const auto colour = picker.pick();
    EXPECT_TRUE(acted) << "the screen was not covered";
    EXPECT_EQ(sheet(), nullptr);
    return colour;
  }

  static void click(QWidget& sheet, const QPoint& place, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(sheet.windowHandle(), button, {}, place);
  }

  vesk::Gui gui;
  vesk::QtScreenPicker picker;
};

TEST_F(ScreenPicker, AClickTakesTheColourUnderIt) {
  const Patch patch({40, 30, 100, 100}, QColor(255, 128, 0));
  const auto colour = pickWhile([](QWidget& sheet) { click(sheet, {90, 80}); });
  ASSERT_TRUE(colour);
  EXPECT_NEAR(colour->r, 1, 1e-4);
  EXPECT_NEAR(colour->g, 128 / 255.0, 1e-4);
  EXPECT_NEAR(colour->b, 0, 1e-4);
  EXPECT_EQ(colour->a, 1);
}

TEST_F(ScreenPicker, CoversTheScreenWithACrosshair) {
  const Patch patch({40, 30, 100, 100}, Qt::red);
  pickWhile([](QWidget& sheet) {
    EXPECT_EQ(sheet.geometry(), QGuiApplication::primaryScreen()->geometry());
    EXPECT_EQ(sheet.cursor().shape(), Qt::CrossCursor);
    QTest::keyClick(sheet.windowHandle(), Qt::Key_Escape);
  });
}

TEST_F(ScreenPicker, TheGlassShowsWhatLiesUnderTheCross) {
  const Patch patch({40, 30, 100, 100}, Qt::red);
  pickWhile([](QWidget& sheet) {
    QTest::mouseMove(sheet.windowHandle(), {90, 80});
    QCoreApplication::processEvents();
    const QImage picture = sheet.grab().toImage();
    EXPECT_EQ(picture.pixelColor(90 + 78, 80 + 78 - 40), QColor(Qt::red)) << "within the glass";
    EXPECT_EQ(picture.pixelColor(90, 80), QColor(Qt::red)) << "the picture of the screen";
    QTest::keyClick(sheet.windowHandle(), Qt::Key_Escape);
  });
}

TEST_F(ScreenPicker, EscapeAndAnotherButtonCancel) {
  const Patch patch({40, 30, 100, 100}, Qt::red);
  EXPECT_FALSE(
      pickWhile([](QWidget& sheet) { QTest::keyClick(sheet.windowHandle(), Qt::Key_Escape); }));
  EXPECT_FALSE(pickWhile([](QWidget& sheet) { click(sheet, {90, 80}, Qt::RightButton); }));
  EXPECT_FALSE(pickWhile([](QWidget& sheet) { sheet.close(); }));
}

TEST_F(ScreenPicker, WorksFromAModalDialog) {
  QWidget dialog;
  dialog.setWindowModality(Qt::ApplicationModal);
  fill(dialog, Qt::green);
  dialog.setGeometry(10, 10, 200, 200);
  dialog.show();
  vesk::Gui::settle();
  EXPECT_EQ(pickWhile([](QWidget& sheet) { click(sheet, {100, 100}); }), KColor(0, 1, 0, 1));
}

// Run by the tests below, where the window system is another.

TEST_F(ScreenPicker, DISABLED_WithoutAPictureOfTheScreenItTakesOwnWindows) {
  const Patch patch({40, 30, 100, 100}, Qt::blue);
  EXPECT_EQ(QGuiApplication::platformName(), "minimal");
  EXPECT_EQ(pickWhile([](QWidget& sheet) {
              click(sheet, {200, 200});
              EXPECT_TRUE(sheet.isVisible()) << "nothing is there to be picked";
              click(sheet, {90, 80});
            }),
            KColor(0, 0, 1, 1));
}

TEST_F(ScreenPicker, DISABLED_WithNothingToSeeItSaysSo) {
  hosttest::Host host;
  EXPECT_EQ(QGuiApplication::platformName(), "minimal");
  EXPECT_FALSE(picker.pick());
  EXPECT_THAT(host.takeMessages(),
              ::testing::ElementsAre("? No colour can be picked: the window system gives no "
                                     "picture of the screen"));
}

TEST_F(ScreenPicker, DISABLED_OnADisplayItTakesWhatIsShown) {
  Patch patch({40, 30, 100, 100}, QColor(0, 255, 255));
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&patch));
  QTest::qWait(50);
  EXPECT_EQ(QGuiApplication::platformName(), "xcb");
  const auto pickAt = [this](const QPoint& place) {
    return pickWhile([&place](QWidget& sheet) {
      EXPECT_TRUE(QTest::qWaitForWindowExposed(&sheet));
      click(sheet, place);
    });
  };
  EXPECT_EQ(pickAt({400, 300}), KColor(0, 0, 0, 1)) << "the bare screen";
  EXPECT_EQ(pickAt({90, 80}), KColor(0, 1, 1, 1));
}

/// Runs the tests of that name in a process of its own.
void runElsewhere(const QProcessEnvironment& environment, const QString& name,
                  const std::string& passed) {
  QProcess process;
  process.setProcessEnvironment(environment);
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(QString::fromStdString(::testing::internal::GetArgvs().front()),
                {"--gtest_also_run_disabled_tests", "--gtest_filter=ScreenPicker." + name});
  ASSERT_TRUE(process.waitForFinished(HiddenDisplay::kPatience));
  const std::string out = process.readAll().toStdString();
  EXPECT_EQ(process.exitCode(), 0) << out;
  EXPECT_THAT(out, ::testing::HasSubstr("[  PASSED  ] " + passed));
}

TEST(ScreenPickerElsewhere, OnADisplay) {
  const HiddenDisplay display;
  runElsewhere(display.environment(), "DISABLED_OnADisplay*", "1 test.");
}

TEST(ScreenPickerElsewhere, WithoutAPictureOfTheScreen) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("QT_QPA_PLATFORM", "minimal");
  runElsewhere(environment, "DISABLED_With*", "2 tests.");
}

}  // namespace

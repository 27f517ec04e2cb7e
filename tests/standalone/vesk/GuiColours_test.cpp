// The colour picker over the whole platform: window, module, graph, and the host's colour
// management.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QPainter>
#include <QTest>
#include <sstream>

#include "standalone/vesk/Gui.h"
#include "standalone/vesk/Startup.h"
#include "standalone/widgets/colour/ColourDialog.h"
#include "standalone/widgets/colour/ColourPicker.h"
#include "standalone/widgets/colour/ColourSwatch.h"
#include "testPaths.h"

namespace {

using vesk::colour::ColourService;

class GuiColours : public ::testing::Test {
 protected:
  GuiColours() {
    run(R"(createNode orvGraph -name "look")");
    run(R"(orvCompound "look" "/" -addNode "core::color::mix3")");
    run(R"(orvNode "look" "/mix3" -setPortDefaultValues "b" "{0.8,0.3,0.1}")");
    run(R"(orvCompoundEditor -edit "look"; orvParameterEditor)");
    run(R"(orvCompoundEditor -selectNodes "mix3")");
  }

  std::string run(const std::string& line) {
    std::ostringstream out;
    vesk::Console listener(out, out);
    EXPECT_TRUE(platform.runLine(line, listener)) << line << '\n' << out.str();
    vesk::Gui::settle();
    return out.str();
  }

  std::string value() { return run(R"(orvNode "look" "/mix3" -queryPortDefaultValues "b")"); }

  /// The swatch of the port "b", below that of "a".
  static QAbstractButton& swatch() {
    std::vector<QAbstractButton*> found;
    for (QWidget* widget : QApplication::allWidgets()) {
      auto* button = qobject_cast<QAbstractButton*>(widget);
      if (button && button->toolTip() == "Edit the colour") found.push_back(button);
    }
    const auto height = [](QAbstractButton* button) { return button->mapToGlobal(QPoint()).y(); };
    return **std::max_element(found.begin(), found.end(),
                              [&](auto* a, auto* b) { return height(a) < height(b); });
  }

  orvuilib::ColourDialog& openPicker() {
    swatch().click();
    vesk::Gui::settle();
    return *swatch().window()->findChild<orvuilib::ColourDialog*>("picker");
  }

  static void choose(QWidget& picker, const char* box, const QString& name) {
    auto& spaces = *picker.findChild<QComboBox*>(box);
    spaces.setCurrentText(name);
    emit spaces.textActivated(name);
    vesk::Gui::settle();
  }

  static QRgb centreOf(QWidget& widget) {
    const QImage picture = widget.grab().toImage();
    return picture.pixel(picture.rect().center());
  }

  /// As the screen gets it.
  static QRgb shown(const orvUI_v1::HIGColor& colour) {
    const KColor screen = ColourService::current()->applyView(
        {colour.r, colour.g, colour.b, colour.a}, vesk::colour::Direction::FromRendering);
    const auto component = [](float value) { return std::clamp(value, 0.0f, 1.0f); };
    return QColor::fromRgbF(component(screen.r), component(screen.g), component(screen.b)).rgb();
  }

  vesk::Gui gui;
  std::ostringstream messages;
  vesk::Console console{messages, messages};
  vesk::ProgramOptions options;
  vesk::Platform platform{options, console, false};
  std::unique_ptr<vesk::MainWindow> window = gui.open(platform.session(), options);
};

TEST_F(GuiColours, ThePickerAndTheSwatchesShowColoursThroughTheViewInForce) {
  orvuilib::ColourDialog& dialog = openPicker();
  dialog.grab();  // everything is laid out
  choose(dialog, "mixingSpace", "sRGB Monitor");
  std::vector<QImage> pictures;
  std::vector<QRgb> colours;
  for (const QString view : {"Standard", "Film"}) {
    choose(dialog, "viewSpace", view);
    const QRgb expected = shown(dialog.picker().colour());
    EXPECT_EQ(centreOf(*dialog.picker().findChildren<orvuilib::ColourSwatch*>().front()), expected);
    EXPECT_EQ(centreOf(swatch()), expected) << "the row behind follows";
    pictures.push_back(dialog.grab().toImage());
    colours.push_back(expected);
  }
  EXPECT_NE(colours[0], colours[1]);
  QImage both(pictures[0].width() * 2 + 16, pictures[0].height(), QImage::Format_RGB32);
  both.fill(dialog.palette().color(QPalette::Dark));
  QPainter painter(&both);
  painter.drawImage(0, 0, pictures[0]);
  painter.drawImage(pictures[0].width() + 16, 0, pictures[1]);
  EXPECT_TRUE(both.save(VESK_BUILD_DIR "/colour-picker.png"));
}

TEST_F(GuiColours, ChangesFromElsewhereAreFollowedWhileThePickerIsOpen) {
  orvuilib::ColourDialog& dialog = openPicker();
  auto& red = *dialog.findChildren<QDoubleSpinBox*>().front();
  run(R"(colorManagement -mixingSpace "ACEScg")");
  EXPECT_NEAR(red.value(), 0.8, 1e-4);
  run(R"(colorManagement -mixingSpace "ACEScct")");
  EXPECT_NEAR(red.value(), (std::log2(0.8) + 9.72) / 17.52, 1e-4) << "the curve of that space";
  run("colorManagement -enable false");
  EXPECT_NEAR(red.value(), 0.8, 1e-4);
  EXPECT_FALSE(dialog.findChild<QComboBox*>("mixingSpace")->isEnabled());
  EXPECT_EQ(centreOf(*dialog.picker().findChildren<orvuilib::ColourSwatch*>().front()),
            qRgb(0xCC, 0x4D, 0x1A));
}

TEST_F(GuiColours, APickIsOneStepHoweverMuchWasTried) {
  const std::string before = value();
  run(R"(colorManagement -mixingSpace "ACEScg")");
  orvuilib::ColourDialog& dialog = openPicker();
  const auto numbers = dialog.findChildren<QDoubleSpinBox*>();
  numbers[0]->setValue(0.25);
  numbers[1]->setValue(0.5);
  numbers[0]->setValue(0.75);
  dialog.accept();
  vesk::Gui::settle();
  EXPECT_EQ(value(), "0.75\n0.5\n0.1\n");
  run("undo");
  EXPECT_EQ(value(), before);
  run("redo");
  EXPECT_EQ(value(), "0.75\n0.5\n0.1\n");
}

TEST_F(GuiColours, TheModuleMayGoWhileThePickerIsOpen) {
  openPicker();
  run("unloadPlugin veskOrvPlugin");
  EXPECT_EQ(window->findChild<orvuilib::ColourDialog*>("picker"), nullptr);
}

}  // namespace

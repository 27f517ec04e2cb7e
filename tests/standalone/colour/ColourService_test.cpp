#include "standalone/colour/ColourService.h"

#include <gmock/gmock.h>

#include <memory>

#include "standalone/host/engine/HostSession.h"
#include "tests/standalone/colour/ColourTesting.h"

namespace vesk::colour {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::kPlainConfiguration;
using testing::relativeError;
using testing::TemporaryFolder;
using testing::WarningLog;

class ColourServiceTest : public ::testing::Test {
 protected:
  ColourServiceTest() { unsetenv("OCIO"); }
  ~ColourServiceTest() override { unsetenv("OCIO"); }

  std::unique_ptr<ColourService> build(const std::string& configuration = "") {
    return std::make_unique<ColourService>(
        ColourOptions{.configuration = configuration, .warn = warnings.sink()});
  }
  std::unique_ptr<ColourService> buildPlain() {
    return build(folder.write("plain.ocio", kPlainConfiguration));
  }

  TemporaryFolder folder;
  WarningLog warnings;
  const KColor colour{0.2f, 0.5f, 1.5f, 0.75f};
};

TEST_F(ColourServiceTest, IsCurrentWhileItLives) {
  EXPECT_EQ(nullptr, ColourService::current());
  const auto first = build();
  {
    const auto second = build();
    EXPECT_EQ(second.get(), ColourService::current());
  }
  EXPECT_EQ(first.get(), ColourService::current());
}

TEST_F(ColourServiceTest, IsActiveOnlyWhenEnabled) {
  const auto service = build();
  EXPECT_EQ(service.get(), ColourService::active());
  service->setEnabled(false);
  EXPECT_EQ(nullptr, ColourService::active());
}

TEST_F(ColourServiceTest, StartsWithTheColourPickingSpaceAndTheDefaultScreen) {
  const auto service = build();
  EXPECT_EQ("sRGB Texture", service->mixingSpace().name);
  EXPECT_EQ((Target{"sRGB Monitor", "Standard"}), service->screen());
  EXPECT_THAT(warnings.texts, IsEmpty());
}

TEST_F(ColourServiceTest, StartsWithTheDefaultDisplayWhenThereIsNoColourPickingRole) {
  const auto service = buildPlain();
  EXPECT_EQ("Monitor", service->mixingSpace().name);
  EXPECT_EQ("Plain", service->mixingSpace().view);
  EXPECT_THAT(warnings.texts, IsEmpty());
}

TEST_F(ColourServiceTest, StartsWithTheRenderingSpaceWhenNothingElseCanBeUsed) {
  std::string text = kPlainConfiguration;
  const std::string view = "    - !<View> {name: Plain, colorspace: Code}\n";
  text.erase(text.find(view), view.size());
  const std::string path = folder.write("lost.ocio", text);
  const auto service = build(path);
  EXPECT_EQ("Light", service->mixingSpace().name);
  EXPECT_EQ(colour, service->applyMixing(colour, Direction::FromRendering));
  EXPECT_EQ(colour, service->applyView(colour, Direction::FromRendering));
  ASSERT_FALSE(warnings.texts.empty());
  EXPECT_THAT(warnings.texts.front(), AllOf(HasSubstr("'Lost'"), HasSubstr("'Monitor'"),
                                            HasSubstr(path), HasSubstr("missing.spi1d")));
}

TEST_F(ColourServiceTest, TakesTheConfigurationOfTheEnvironment) {
  const std::string path = folder.write("plain.ocio", kPlainConfiguration);
  setenv("OCIO", path.c_str(), 1);
  EXPECT_EQ(path, build()->configuration().path);
}

TEST_F(ColourServiceTest, FallsBackToTheShippedConfigurationNotToTheEnvironment) {
  setenv("OCIO", folder.write("plain.ocio", kPlainConfiguration).c_str(), 1);
  const auto service = build(folder.path() + "/nowhere.ocio");
  EXPECT_EQ("", service->configuration().path);
  EXPECT_EQ("sRGB Texture", service->mixingSpace().name);
  EXPECT_THAT(warnings.texts, ElementsAre(HasSubstr("nowhere.ocio")));
}

TEST_F(ColourServiceTest, WarnsThroughTheHostSession) {
  HostSession session;
  std::vector<std::string> messages;
  session.messages().addSink([&](const Message& message) {
    if (message.kind == MessageKind::Warning) messages.emplace_back(message.text);
  });
  const ColourService service({.configuration = "/nowhere.ocio"});
  EXPECT_THAT(messages, ElementsAre(HasSubstr("'/nowhere.ocio'")));
}

TEST_F(ColourServiceTest, WarnsOnTheTerminalWithoutAHostSession) {
  ::testing::internal::CaptureStderr();
  const ColourService service({.configuration = "/nowhere.ocio"});
  EXPECT_THAT(::testing::internal::GetCapturedStderr(), HasSubstr("Warning: "));
}

TEST_F(ColourServiceTest, MixesInTheChosenSpace) {
  const auto service = buildPlain();
  EXPECT_TRUE(service->setMixingSpace("Light"));
  EXPECT_EQ(colour, service->applyMixing(colour, Direction::FromRendering));
  EXPECT_TRUE(service->setMixingSpace("Monitor"));
  EXPECT_EQ(KColor(0.5f, 0.5f, 0.5f),
            service->applyMixing({0.25f, 0.25f, 0.25f}, Direction::FromRendering));
}

TEST_F(ColourServiceTest, RefusesAnUnknownSpaceAndKeepsTheOldOne) {
  const auto service = buildPlain();
  EXPECT_EQ(StatusBadArgument, service->setMixingSpace("Twilight").statusCode());
  EXPECT_EQ("Monitor", service->mixingSpace().name);
  EXPECT_THAT(warnings.texts, ElementsAre(AllOf(HasSubstr("'Twilight'"), HasSubstr("plain.ocio"))));
}

TEST_F(ColourServiceTest, RefusesASpaceThatCannotBeReachedAndKeepsTheOldOne) {
  const auto service = buildPlain();
  const KColor before = service->applyMixing(colour, Direction::FromRendering);
  EXPECT_EQ(StatusFailure, service->setMixingSpace("Broken").statusCode());
  EXPECT_EQ("Monitor", service->mixingSpace().name);
  EXPECT_EQ(before, service->applyMixing(colour, Direction::FromRendering));
  EXPECT_THAT(warnings.texts,
              ElementsAre(AllOf(HasSubstr("'Broken'"), HasSubstr("missing.spi1d"))));
}

TEST_F(ColourServiceTest, RefusesAViewThatCannotBeReachedAndKeepsTheOldOne) {
  const auto service = buildPlain();
  EXPECT_EQ(StatusFailure, service->setView("Lost").statusCode());
  EXPECT_EQ("Plain", service->mixingSpace().view);
  EXPECT_EQ((Target{"Monitor", "Plain"}), service->screen());
  EXPECT_THAT(warnings.texts, ElementsAre(AllOf(HasSubstr("'Lost'"), HasSubstr("missing.spi1d"))));
}

TEST_F(ColourServiceTest, RefusesAnUnknownViewAndKeepsTheOldOne) {
  const auto service = buildPlain();
  EXPECT_EQ(StatusBadArgument, service->setView("Film").statusCode());
  EXPECT_EQ("Plain", service->mixingSpace().view);
  EXPECT_THAT(warnings.texts, ElementsAre(AllOf(HasSubstr("'Monitor'"), HasSubstr("'Film'"))));
}

TEST_F(ColourServiceTest, RefusesAViewForASpaceThatHasNone) {
  const auto service = build();
  EXPECT_EQ(StatusFailure, service->setView("Standard").statusCode());
  EXPECT_EQ("", service->mixingSpace().view);
  EXPECT_THAT(warnings.texts,
              ElementsAre(AllOf(HasSubstr("'sRGB Texture'"), HasSubstr("no views"))));
}

TEST_F(ColourServiceTest, RemembersTheViewOfEachDisplay) {
  const auto service = build();
  service->setMixingSpace("sRGB Monitor");
  service->setView("Film");
  service->setMixingSpace("P3-D65 Cinema");
  EXPECT_EQ("Standard", service->mixingSpace().view);
  service->setMixingSpace("sRGB Monitor");
  EXPECT_EQ("Film", service->mixingSpace().view);
}

TEST_F(ColourServiceTest, ShowsTheScreenThroughTheDisplayLastChosen) {
  const auto service = build();
  service->setMixingSpace("Rec.1886 Video");
  service->setView("Log");
  service->setMixingSpace("ACEScg");
  EXPECT_EQ((Target{"Rec.1886 Video", "Log"}), service->screen());
  EXPECT_EQ(colour, service->applyMixing(colour, Direction::FromRendering));
  EXPECT_NE(colour, service->applyView(colour, Direction::FromRendering));
}

TEST_F(ColourServiceTest, LeadsBackThroughEverySpaceAndThePlainViews) {
  const auto service = build();
  for (const MixingSpace& space : service->mixingSpaces()) {
    ASSERT_TRUE(service->setMixingSpace(space.name));
    const KColor mixed = service->applyMixing(colour, Direction::FromRendering);
    const KColor shown = service->applyView(colour, Direction::FromRendering);
    EXPECT_LE(relativeError(service->applyMixing(mixed, Direction::ToRendering), colour), 1e-5f);
    EXPECT_LE(relativeError(service->applyView(shown, Direction::ToRendering), colour), 1e-5f);
  }
}

TEST_F(ColourServiceTest, MakesSlidersEvenInLinearSpacesOnly) {
  const auto service = build();
  service->setMixingSpace("ACEScg");
  EXPECT_NEAR(0.495f, service->mixingToSlider(0.18f, 0, 1), 1e-3f);
  EXPECT_NEAR(0.18f, service->sliderToMixing(service->mixingToSlider(0.18f, 0, 1), 0, 1), 1e-6f);
  service->setMixingSpace("ACEScct");
  EXPECT_EQ(0.18f, service->mixingToSlider(0.18f, 0, 1));
  EXPECT_EQ(0.18f, service->sliderToMixing(0.18f, 0, 1));
}

TEST_F(ColourServiceTest, KeepsTheChoiceWhileItIsOff) {
  const auto service = build();
  service->setMixingSpace("ACEScct");
  service->setEnabled(false);
  service->setEnabled(true);
  EXPECT_EQ("ACEScct", service->mixingSpace().name);
}

}  // namespace
}  // namespace vesk::colour

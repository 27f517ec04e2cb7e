#include "standalone/colour/MixingSpace.h"

#include <gmock/gmock.h>

#include "tests/standalone/colour/ColourTesting.h"

namespace vesk::colour {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::kPlainConfiguration;
using testing::parse;

std::vector<std::string> namesIn(const std::string& configuration) {
  std::vector<std::string> names;
  for (const auto& space : listMixingSpaces(*parse(configuration))) names.push_back(space.name);
  return names;
}

std::string replaced(std::string text, const std::string& what, const std::string& with) {
  return text.replace(text.find(what), what.size(), with);
}

TEST(MixingSpace, ListsTheRenderingSpaceFirstAndDisplaysLast) {
  EXPECT_THAT(namesIn(kShippedConfiguration),
              ElementsAre("ACEScg", "Linear Rec.709", "sRGB Texture", "ACEScct", "sRGB Monitor",
                          "Rec.1886 Video", "P3-D65 Cinema"));
}

TEST(MixingSpace, OffersEveryColourSpaceButDataWithoutTheCategory) {
  EXPECT_THAT(namesIn(kPlainConfiguration), ElementsAre("Light", "Broken", "Monitor", "Code"));
}

TEST(MixingSpace, ListsADisplayInPlaceOfAColourSpaceOfItsName) {
  EXPECT_TRUE(listMixingSpaces(*parse(kPlainConfiguration)).back().hasViews());
}

TEST(MixingSpace, ListsTheRenderingSpaceInPlaceOfADisplayOfItsName) {
  const auto text = replaced(kPlainConfiguration, "  Code:\n", "  Light:\n");
  EXPECT_THAT(namesIn(text), ElementsAre("Light", "Code", "Broken", "Monitor"));
  EXPECT_FALSE(listMixingSpaces(*parse(text)).front().hasViews());
}

TEST(MixingSpace, GivesViewsToDisplaysAlone) {
  const auto spaces = listMixingSpaces(*parse(kPlainConfiguration));
  EXPECT_THAT(spaces.front().views, IsEmpty());
  EXPECT_EQ("", spaces.front().view);
  EXPECT_THAT(spaces[2].views, ElementsAre("Plain", "Lost"));
  EXPECT_EQ("Plain", spaces[2].view);
}

TEST(MixingSpace, PrefersTheColourPickingRoleThenTheDefaultDisplay) {
  EXPECT_THAT(preferredMixingSpaces(*parse(kShippedConfiguration)),
              ElementsAre("sRGB Texture", "sRGB Monitor"));
  EXPECT_THAT(preferredMixingSpaces(*parse(kPlainConfiguration)), ElementsAre("", "Monitor"));
}

}  // namespace
}  // namespace vesk::colour

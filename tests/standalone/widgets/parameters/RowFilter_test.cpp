#include "standalone/widgets/parameters/RowFilter.h"

#include "tests/standalone/widgets/parameters/ParameterTesting.h"

namespace orvuilib {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RowFilterTest : public ParameterTest {
 protected:
  RowFilterTest() {
    host.run("orvCompound g \"/\" -create box");
    host.run(
        "orvCompound g \"/box\" -createInputPort size float -createInputPort count int "
        "-createInputPort label string -createInputPort offset vector3");
    host.run("orvNode g \"/box\" -setPortDefaultValues label \"Size of it\"");
    host.run("orvNode g \"/box\" -setPortDefaultValues count 42");
  }

  /// The names of the rows that pass.
  std::vector<std::string> found(const char* typed) {
    const std::vector<orvlib::NodeRef> nodes{
        orvlib::NodeRef(static_cast<orvlib::NodeObject*>(node("/box").get()))};
    const auto groups = makeRows(nodes);
    std::vector<std::string> names;
    for (const ParameterRow& row : groups.at(0).rows) {
      if (RowFilter(typed).passes(row)) names.push_back(row.label.toStdString());
    }
    return names;
  }
};

TEST_F(RowFilterTest, LooksIntoNamesAndValuesAndAtTheBeginningOfTypes) {
  EXPECT_THAT(found("size"), ElementsAre("size", "label"));
  EXPECT_THAT(found("4"), ElementsAre("count"));
  EXPECT_THAT(found("VEC"), ElementsAre("offset"));
  EXPECT_THAT(found("tor"), IsEmpty());
}

TEST_F(RowFilterTest, IsNarrowedByAWordAheadOfIt) {
  EXPECT_THAT(found("name: size"), ElementsAre("size"));
  EXPECT_THAT(found("value:size"), ElementsAre("label"));
  EXPECT_THAT(found("Type:tor"), ElementsAre("offset"));
  EXPECT_THAT(found("type:4"), IsEmpty());
}

TEST_F(RowFilterTest, IsEmptyWithoutATextToLookFor) {
  EXPECT_TRUE(RowFilter().isEmpty());
  EXPECT_TRUE(RowFilter("  ").isEmpty());
  EXPECT_TRUE(RowFilter("value: ").isEmpty());
}

}  // namespace
}  // namespace orvuilib

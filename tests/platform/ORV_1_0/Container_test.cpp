#include "platform/ORV_1_0/Container.h"

#include "tests/standalone/graph/GraphFixture.h"

namespace {

using ORV_v1::AddRefWrapper;
using ORV_v1::Container;
using ORV_v1::Port;
using orvlib::PortDirection;

/// The node "/add", and the compound "/group" with the output "out" and the node "/group/deep". The
/// lookups are those of the interface.
class ContainerTest : public orvlib::GraphFixture {
 protected:
  ContainerTest() {
    add(top(), "core::math::add", "add");
    orvlib::CompoundObject* group = addCompound(top(), "group");
    addPort(*group, PortDirection::Output, "out", "float");
    add(*group, "core::math::add", "deep");
    const orvlib::AnnotationRef note(
        new orvlib::AnnotationObject(orvlib::AnnotationKind::StickyNote, "note"));
    EXPECT_TRUE(edits_.run(orvlib::InsertAnnotation{{orvlib::CompoundRef(group), note, 0}}));
  }

  AddRefWrapper<Port> findPort(const char* path) {
    return container_.findPortFromPath(path, Container::kSearchEither, Container::kSearchOuter);
  }

  Container& container_ = graph_;
};

constexpr const char* kPathsOfNothing[] = {nullptr, "", "none", "/none", "/add/none", "/group//"};

TEST_F(ContainerTest, FindsANodeByItsFullPath) {
  for (const char* path : {"/", "/add", "/group", "/group/deep"}) {
    const auto node = container_.findNodeFromPath(path);
    ASSERT_TRUE(node) << path;
    EXPECT_STREQ(node->getFullPathName().getName(), path);
  }
}

TEST_F(ContainerTest, FindsAPortByItsFullPath) {
  for (const char* path : {"/add.a", "/group.out", "/group/deep.result"}) {
    const auto port = findPort(path);
    ASSERT_TRUE(port) << path;
    EXPECT_STREQ(port->getFullPathName().getName(), path);
  }
}

TEST_F(ContainerTest, FindsAnAnnotationByItsFullPath) {
  const auto note = container_.findAnnotationFromPath("/group/note");
  ASSERT_TRUE(note);
  EXPECT_STREQ(note->getName(), "note");
}

TEST_F(ContainerTest, GivesANullHandleForAPathOfNothing) {
  for (const char* path : kPathsOfNothing) {
    const char* shown = path ? path : "null";
    EXPECT_FALSE(container_.findNodeFromPath(path)) << shown;
    EXPECT_FALSE(findPort(path)) << shown;
    EXPECT_FALSE(container_.findAnnotationFromPath(path)) << shown;
  }
}

TEST_F(ContainerTest, GivesANullHandleForAPathOfAnotherKindOfObject) {
  EXPECT_FALSE(container_.findNodeFromPath("/add.a"));
  EXPECT_FALSE(container_.findNodeFromPath("/group/note"));
  EXPECT_FALSE(findPort("/add"));
  EXPECT_FALSE(findPort("/add.none"));
  EXPECT_FALSE(container_.findAnnotationFromPath("/group/deep"));
  EXPECT_FALSE(container_.findAnnotationFromPath("/note"));
}

/// What a handle leads to, as "path" or, for an inner face, "path inside".
std::string shown(const AddRefWrapper<Port>& port) {
  if (!port) return "null";
  const std::string path = port->getFullPathName().getName();
  return port->isCompoundInternalPort() ? path + " inside" : path;
}

class PortsForConnection : public ContainerTest {
 protected:
  bool find(const char* source, const char* destination) {
    return container_.findPortsForConnection(source, destination, &source_, &destination_);
  }

  AddRefWrapper<Port> source_;
  AddRefWrapper<Port> destination_;
};

TEST_F(PortsForConnection, AreThoseOfOneLevel) {
  ASSERT_TRUE(find("/group.out", "/add.a"));
  EXPECT_EQ(shown(source_), "/group.out");
  EXPECT_EQ(shown(destination_), "/add.a");
}

TEST_F(PortsForConnection, AreTheInnerFaceInsideACompound) {
  ASSERT_TRUE(find("/group/deep.result", "/group.out"));
  EXPECT_EQ(shown(source_), "/group/deep.result");
  EXPECT_EQ(shown(destination_), "/group.out inside");
}

TEST_F(PortsForConnection, OfOneCompoundAreTheInnerFacesFromItsInputToItsOutput) {
  addPort(*graph_.findCompound("/group"), PortDirection::Input, "in", "float");
  ASSERT_TRUE(find("/group.in", "/group.out"));
  EXPECT_EQ(shown(source_), "/group.in inside");
  EXPECT_EQ(shown(destination_), "/group.out inside");
  EXPECT_TRUE(destination_->addConnection(source_, true));
  ASSERT_TRUE(find("/group.out", "/group.in"));
  EXPECT_EQ(shown(source_), "/group.out");
  EXPECT_EQ(shown(destination_), "/group.in");
}

TEST_F(PortsForConnection, NeedPlacesForBothHandles) {
  EXPECT_FALSE(container_.findPortsForConnection("/group.out", "/add.a", nullptr, &destination_));
  EXPECT_FALSE(container_.findPortsForConnection("/group.out", "/add.a", &source_, nullptr));
  EXPECT_FALSE(container_.findPortsForConnection("/group.out", "/add.a", nullptr, nullptr));
  EXPECT_FALSE(source_);
  EXPECT_FALSE(destination_);
}

TEST_F(PortsForConnection, ThatAreNotThereLeaveNoFormerHandles) {
  constexpr std::pair<const char*, const char*> kPairs[] = {{"/group.out", "/none.a"},
                                                            {"/none.out", "/add.a"},
                                                            {nullptr, "/add.a"},
                                                            {"/group.out", nullptr},
                                                            {"", ""},
                                                            {"/add.a", "/add.b"},
                                                            {"/group/deep.result", "/add.a"}};
  for (const auto& [source, destination] : kPairs) {
    ASSERT_TRUE(find("/group.out", "/add.a"));
    EXPECT_FALSE(find(source, destination));
    EXPECT_EQ(shown(source_), "null");
    EXPECT_EQ(shown(destination_), "null");
  }
}

}  // namespace

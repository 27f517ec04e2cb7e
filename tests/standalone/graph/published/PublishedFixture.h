#pragma once

#include "standalone/graph/storage/GraphText.h"
#include "testPaths.h"
#include "tests/standalone/graph/GraphFixture.h"
#include "tests/standalone/graph/TemporaryFolder.h"

namespace orvlib {

/// A graph of the standard runtime with a folder to publish to, and a compound /soft in it: its
/// input size goes to the node twice, and what that gives to its output result.
class PublishedFixture : public GraphFixture {
 protected:
  PublishedFixture() {
    fresh_.setPublishedFolder(folder_.path());
    fresh_.load(VESK_SOURCE_DIR "/library");
    fresh_.makeCurrent();
    fresh_.setDiagnosticHandler(
        [this](const Diagnostic& diagnostic) { told_.push_back(diagnostic.reason); });
    soft_ = addCompound(top(), "soft");
    addPort(*soft_, PortDirection::Input, "size", "float");
    addPort(*soft_, PortDirection::Output, "result", "float");
    add(*soft_, "core::math::add", "twice");
    connect("/soft.size", "/soft/twice.a");
    connect("/soft.size", "/soft/twice.b");
    connect("/soft/twice.result", "/soft.result");
  }

  /// The error; empty when it was published.
  std::string publish(const char* name = "soft", const char* library = "", bool replace = false) {
    return publish(*soft_, name, library, replace);
  }
  static std::string publish(CompoundObject& compound, const char* name, const char* library = "",
                             bool replace = false) {
    ORV_v1::String error;
    const bool done = compound.publish(name, library, "Text.", replace, error);
    EXPECT_EQ(done, error.empty());
    return error.toChar();
  }

  /// An instance of a published compound at the top; null when there can be none.
  CompoundObject* instance(std::string_view type, std::string name) {
    const auto definition = graph_.core().findDefinition(type);
    if (definition == nullptr) return nullptr;
    const NodeRef node = factory().make(*definition, std::move(name));
    return node == nullptr ? nullptr : insert(top(), node)->compound();
  }

  std::string stored() const { return writeGraph(graph_); }
  std::string file(const std::string& name) const {
    return (folder_.path() / "standard" / name).string();
  }
  bool isOffered(std::string_view type) const {
    return graph_.core().findDefinition(type) != nullptr;
  }

  TemporaryFolder folder_;
  RuntimeRegistry fresh_;
  std::vector<std::string> told_;
  CompoundObject* soft_;
};

}  // namespace orvlib

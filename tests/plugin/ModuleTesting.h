#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "standalone/graph/library/RuntimeRegistry.h"
#include "standalone/host/engine/HostSession.h"
#include "testPaths.h"
#include "tests/plugin/RecordedCalls.h"

inline constexpr const char* kModulePath = VESK_BUILD_DIR "/plug-ins/veskOrvPlugin.so";
inline constexpr const char* kModuleName = "veskOrvPlugin";

/// A host and a graph library with the runtimes of tests/data. A message that a test did not take
/// fails it.
class ModuleTest : public testing::Test {
 protected:
  explicit ModuleTest(const std::string& language = {}) {
    vesk::SessionOptions options;
    options.language = language;
    options.catalogueFolders = {VESK_SOURCE_DIR "/catalogues"};
    options.messages = [this](const vesk::Message& message) { hear(message); };
    session_ = std::make_unique<vesk::HostSession>(std::move(options));
    EXPECT_TRUE(runtimes_.load(VESK_SOURCE_DIR "/tests/data/library").empty());
    runtimes_.makeCurrent();
    takeRecordedCalls();
  }

  ~ModuleTest() override {
    session_.reset();
    EXPECT_THAT(messages_, testing::IsEmpty()) << "messages that were not expected";
  }

  KStatus load() { return session_->plugins().load(kModulePath); }
  KStatus unload() { return session_->plugins().unload(kModuleName); }
  std::shared_ptr<vesk::Plugin> module() { return session_->plugins().find(kModuleName); }

  KStatus run(std::string_view line) { return session_->runLine(line, result_); }

  /// The result of a line that must succeed, as JSON.
  std::string resultOf(std::string_view line) {
    EXPECT_TRUE(run(line)) << line;
    return vesk::toJson(result_);
  }

  /// Errors as "! text" and warnings as "? text".
  std::vector<std::string> takeMessages() { return std::exchange(messages_, {}); }

  vesk::ResultValue result_;
  orvlib::RuntimeRegistry runtimes_;
  std::unique_ptr<vesk::HostSession> session_;

 private:
  void hear(const vesk::Message& message) {
    const bool error = message.kind == vesk::MessageKind::Error;
    if (!error && message.kind != vesk::MessageKind::Warning) return;
    messages_.push_back((error ? "! " : "? ") + std::string(message.text));
  }

  std::vector<std::string> messages_;
};

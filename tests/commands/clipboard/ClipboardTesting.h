#pragma once

#include <functional>
#include <string>

#include "platform/ORV_1_0/AnnotationList.h"
#include "platform/ORV_1_0/NodeList.h"
#include "standalone/graph/clipboard/Clipboard.h"
#include "tests/commands/CommandTesting.h"

/// A clipboard of the system's kind, which can refuse.
struct TrialClipboard final : orvlib::SystemClipboard {
  bool setText(const std::string& text) override {
    if (!refuses) held = text;
    return !refuses;
  }
  std::string text() const override {
    if (whenAsked) whenAsked();
    return held;
  }

  std::string held = "untouched";
  bool refuses = false;
  std::function<void()> whenAsked;
};

/// A graph "g" with the nodes "a", "b" and "c" that are connected in this order, the backdrop
/// "frame", the note "note" and the compound "group", which is empty. Nothing is on the clipboard.
class ClipboardTest : public CommandTest {
 protected:
  using Texts = hosttest::Texts;

  static constexpr const char* kParsingError = "! Invalid parameters detected.  Exiting.";
  static constexpr const char* kTooFew = "! Too few arguments given.";

  ClipboardTest() {
    for (const std::string name : {"a", "b", "c"}) {
      host.run("orvCompound g \"/\" -addNode core::math::negate -renameNode negate " + name);
    }
    host.run("orvConnect g /a.result /b.value");
    host.run("orvConnect g /b.result /c.value");
    host.run("orvCompound g \"/\" -addBackdrop frame -addStickyNote note");
    host.run("orvCompound g \"/\" -create group");
    host.session().undoQueue().clear();
    orvlib::Clipboard::setText("");
  }
  ~ClipboardTest() override {
    orvlib::Clipboard::install(nullptr);
    orvlib::Clipboard::setLocal(false);
  }

  void lock(const std::string& path) {
    host.run("orvCompound g \"" + path + "\" -setMetaData locked true");
    host.session().undoQueue().clear();
  }

  ORV_v1::AddRefWrapper<ORV_v1::Compound> compound(const std::string& path) {
    const ORV_v1::AddRefWrapper<ORV_v1::Node> found = graph.findNodeFromPath(path.c_str());
    return found ? found->asCompound() : ORV_v1::AddRefWrapper<ORV_v1::Compound>();
  }

  /// The names of what the compound holds, in their order: nodes, or annotations.
  Texts nodes(const std::string& path) {
    Texts names;
    for (const auto& child : compound(path)->getChildNodes()) names.emplace_back(child->getName());
    return names;
  }
  Texts annotations(const std::string& path) {
    Texts names;
    for (const auto& one : compound(path)->getAnnotations()) names.emplace_back(one->getName());
    return names;
  }

  /// The path of what the input of that path is connected to; empty when it is not.
  std::string sourceOf(const std::string& path) {
    ORV_v1::AddRefWrapper<ORV_v1::Port> port = graph.findPortFromPath(
        path.c_str(), ORV_v1::Container::kSearchInput, ORV_v1::Container::kSearchOuter);
    if (!port) return "no port " + path;
    for (const auto& source : port->connectedTo()) {
      return source->getFullPathName().getName();
    }
    return "";
  }
};

/// The calls of the library's copies and pastes that were made while it lives.
class ClipboardCalls {
 public:
  hosttest::Texts take() const {
    hosttest::Texts names;
    for (const std::string_view name : orvlib::FaultPoints::askedNames()) {
      if (name.starts_with("CopyCommand ") || name.starts_with("PasteCommand ")) {
        names.emplace_back(name);
      }
    }
    return names;
  }

 private:
  static constexpr unsigned kNever = 1'000'000;
  const orvlib::ArmedFault counting_{kNever};
};

/// The command, run where the line has a result already.
template <class Command>
class WithOldResult final : public Command {
 public:
  static KPxCommand* creator() { return new WithOldResult; }
  KStatus doIt(const KArgList& args) override {
    KPxCommand::setResult(KString("old"));
    return Command::doIt(args);
  }
};

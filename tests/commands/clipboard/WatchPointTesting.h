#pragma once

#include <string>

#include "platform/ORV_1_0/ChangeBracket.h"
#include "platform/ORV_1_0/WatchPoint.h"
#include "tests/commands/CommandTesting.h"

/// A graph "g" with an input "top" and an output "bottom", and a compound "group" with an input
/// "size", an output "out" and a node "add"; a second "add" is at the top.
class WatchPointTest : public CommandTest {
 protected:
  using Texts = hosttest::Texts;

  static constexpr const char* kParsingError = "! Invalid parameters detected.  Exiting.";
  static constexpr const char* kTooFew = "! Too few arguments given.";

  WatchPointTest() {
    host.run("orvCompound g \"/\" -addNode core::math::add -cip top float -cop bottom float");
    host.run("orvCompound g \"/\" -create group");
    host.run("orvCompound g /group -addNode core::math::add -cip size float -cop out float");
    host.session().undoQueue().clear();
  }

  static std::string line(const std::string& flags, const std::string& port = "/add result") {
    return "orvWatchPoint g " + port + " " + flags;
  }

  /// Runs `orvWatchPoint g PORT FLAGS`, which must work; gives its result as JSON.
  std::string run(const std::string& flags, const std::string& port = "/add result") {
    return host.run(line(flags, port));
  }

  /// Runs it as a line that must fail with `StatusFailure`; gives its messages.
  Texts refusal(const std::string& flags, const std::string& port = "/add result") {
    return refusalOf(line(flags, port));
  }

  /// Has the metadata of watch points at hand without a query of the command, which has none.
  std::string metadata(const char* path = "/add.result") {
    const ORV_v1::AddRefWrapper<ORV_v1::WatchPoint> found = watchPoint(path);
    if (!found) return "no watch point";
    return found->getMetadata().serialize(ORV_v1::PropertyList::kSerializeAll).toChar();
  }

  ORV_v1::AddRefWrapper<ORV_v1::WatchPoint> watchPoint(const char* path) {
    return watchPointAt(path, ORV_v1::Container::kSearchOuter);
  }
  ORV_v1::AddRefWrapper<ORV_v1::WatchPoint> innerWatchPoint(const char* path) {
    return watchPointAt(path, ORV_v1::Container::kSearchInner);
  }

  /// Sets an input of the node "add" at the top.
  void set(const std::string& port, const std::string& value) {
    host.run("orvNode g /add -setPortDefaultValues " + port + " " + value);
  }

  void lock(const std::string& path) {
    host.run("orvCompound g \"" + path + "\" -setMetaData locked true");
    host.session().undoQueue().clear();
  }

 private:
  ORV_v1::AddRefWrapper<ORV_v1::WatchPoint> watchPointAt(const char* path,
                                                         ORV_v1::Container::ESearchMode mode) {
    const ORV_v1::AddRefWrapper<ORV_v1::Port> port =
        graph.findPortFromPath(path, ORV_v1::Container::kSearchEither, mode);
    return port ? port->getWatchPoint() : ORV_v1::AddRefWrapper<ORV_v1::WatchPoint>();
  }
};

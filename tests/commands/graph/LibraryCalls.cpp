#include "tests/commands/graph/LibraryCalls.h"

#include <dlfcn.h>

#include "platform/ORV_1_0/ConnectCommand.h"
#include "platform/ORV_1_0/ModifyNodePortCommand.h"

namespace {

/// The library's own definition of the operation of that symbol.
template <class Result, class... Arguments>
auto library(const char* symbol) {
  void* found = dlsym(RTLD_NEXT, symbol);
  if (!found) ADD_FAILURE() << "the graph library has no " << symbol;
  return reinterpret_cast<Result (*)(Arguments...)>(found);
}

std::string pathOf(const LibraryCalls::PortHandle& port) {
  return port ? port->getFullPathName().getName() : "null";
}

void note(const std::string& call) {
  if (LibraryCalls::current) LibraryCalls::current->note(call);
}

}  // namespace

LibraryCalls* LibraryCalls::current = nullptr;

LibraryCalls::LibraryCalls() { current = this; }
LibraryCalls::~LibraryCalls() { current = nullptr; }

void LibraryCalls::note(const std::string& call) {
  texts_.push_back(call);
  if (atCall) atCall();
}

namespace ORV_v1 {

bool ConnectCommand::connect(Container* container, const AddRefWrapper<Port>& source,
                             const AddRefWrapper<Port>& destination, bool copyMetaData) {
  note("connect " + pathOf(source) + " " + pathOf(destination) +
       (copyMetaData ? " metadata" : " plain"));
  if (LibraryCalls::current && LibraryCalls::current->connect) {
    return LibraryCalls::current->connect(source, destination);
  }
  static const auto own = library<bool, ConnectCommand*, Container*, const AddRefWrapper<Port>&,
                                  const AddRefWrapper<Port>&, bool>(
      "_ZN6ORV_v114ConnectCommand7connectEPNS_9ContainerERKNS_13AddRefWrapperINS_4PortEEES7_b");
  return own(this, container, source, destination, copyMetaData);
}

bool ConnectCommand::disconnect(Container* container, const AddRefWrapper<Port>& source,
                                const AddRefWrapper<Port>& destination) {
  note("disconnect " + pathOf(source) + " " + pathOf(destination));
  static const auto own = library<bool, ConnectCommand*, Container*, const AddRefWrapper<Port>&,
                                  const AddRefWrapper<Port>&>(
      "_ZN6ORV_v114ConnectCommand10disconnectEPNS_9ContainerERKNS_13AddRefWrapperINS_4PortEEES7_");
  return own(this, container, source, destination);
}

bool ConnectCommand::undo() {
  note("undo");
  static const auto own = library<bool, ConnectCommand*>("_ZN6ORV_v114ConnectCommand4undoEv");
  return own(this);
}

bool ConnectCommand::redo() {
  note("redo");
  static const auto own = library<bool, ConnectCommand*>("_ZN6ORV_v114ConnectCommand4redoEv");
  return own(this);
}

bool ModifyNodePortCommand::handlePortFlags(const AddRefWrapper<Port>& port,
                                            Container::ESearchIOType ioType,
                                            Container::ESearchMode mode, PortFlags flags,
                                            QueryPortFlags operation) {
  note("handlePortFlags " + pathOf(port) + " " + std::to_string(ioType) + " " +
       std::to_string(mode) + " " + std::to_string(static_cast<std::uint32_t>(flags)) + " " +
       std::to_string(static_cast<std::uint32_t>(operation)));
  if (LibraryCalls::current && LibraryCalls::current->answer) {
    return LibraryCalls::current->answer();
  }
  static const auto own =
      library<bool, ModifyNodePortCommand*, const AddRefWrapper<Port>&, Container::ESearchIOType,
              Container::ESearchMode, PortFlags, QueryPortFlags>(
          "_ZN6ORV_v121ModifyNodePortCommand15handlePortFlagsERKNS_13AddRefWrapperINS_4PortEEE"
          "NS_9Container13ESearchIOTypeENS6_11ESearchModeENS_9PortFlagsENS_14QueryPortFlagsE");
  return own(this, port, ioType, mode, flags, operation);
}

bool ModifyNodePortCommand::redo() {
  note("redo");
  if (LibraryCalls::current && LibraryCalls::current->answer) {
    return LibraryCalls::current->answer();
  }
  static const auto own =
      library<bool, ModifyNodePortCommand*>("_ZN6ORV_v121ModifyNodePortCommand4redoEv");
  return own(this);
}

void ModifyNodePortCommand::undo() {
  note("undo");
  static const auto own =
      library<void, ModifyNodePortCommand*>("_ZN6ORV_v121ModifyNodePortCommand4undoEv");
  own(this);
}

}  // namespace ORV_v1

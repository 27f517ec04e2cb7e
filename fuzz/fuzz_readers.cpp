// Everything that reads a text from outside. The first byte says who reads the others.

#include <cstdint>
#include <cstdlib>

#include "fuzz/Bytes.h"
#include "fuzz/readers.h"
#include "standalone/graph/library/RuntimeRegistry.h"
#include "standalone/vesk/DataFolders.h"

namespace {

constexpr void (*kReaders[])(std::string_view) = {
    fuzz::readValueList,    fuzz::readPropertyText,    fuzz::readTypedValues,
    fuzz::readGraphText,    fuzz::readContentText,     fuzz::readSelectionText,
    fuzz::readSceneText,    fuzz::readRuntimeFile,     fuzz::readLibraryFile,
    fuzz::readCompoundFile, fuzz::readOptionVariables, fuzz::readWorkspaceText,
    fuzz::readCatalogue,    fuzz::readScriptFile,      fuzz::readTranscript};

/// The shipped definitions, which graphs are made of. They stay until the end.
void loadLibrary() {
  static auto* const runtimes = [] {
    auto* registry = new orvlib::RuntimeRegistry;
    if (!registry->load(vesk::shippedLibraryFolder()).empty()) std::abort();
    return registry;
  }();
  runtimes->makeCurrent();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  loadLibrary();
  fuzz::Bytes bytes(data, size);
  const auto read = bytes.oneOf(kReaders);
  read(bytes.rest());
  return 0;
}

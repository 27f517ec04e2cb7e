#include <cstdio>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <string>

#include "buildInfo.h"

namespace {

constexpr const char* kDumpVariable = "KESTRIM_DUMP_VERSION_INFO";

bool isDumpWanted() {
  const char* value = std::getenv(kDumpVariable);
  return value && std::atoi(value) != 0 && fileno(stderr) >= 0;
}

std::string versionText() {
  return std::string("Vesk-ORV-Plugin version ") + VESK_ORV_VERSION + " (" + VESK_ORV_BUILD_DATE +
         ", build " + VESK_ORV_BUILD_NUMBER + ", commit " +
         std::string(VESK_ORV_COMMIT).substr(0, 7) + ", branch " + VESK_ORV_BRANCH + ")";
}

bool dumpVersion() {
  if (!isDumpWanted()) return false;
  std::cerr << std::setw(16) << "veskOrvPlugin"
            << ": " << versionText() << std::endl;
  return true;
}

/// Whether the version line was printed when the module was loaded.
[[maybe_unused]] const bool versionInfoDumped = dumpVersion();

}  // namespace

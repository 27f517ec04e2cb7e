#include "standalone/vesk/DataFolders.h"

#include <QStandardPaths>
#include <cstdlib>
#include <filesystem>

namespace vesk {
namespace {

namespace fs = std::filesystem;

fs::path programFolder() {
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  return error ? fs::current_path() : program.parent_path();
}

std::string dataFolder(const char* name) {
  std::error_code error;
  const fs::path installed = programFolder().parent_path() / "share" / "vesk" / name;
  return fs::is_directory(installed, error) ? installed.string()
                                            : (fs::path(VESK_SOURCE_DIR) / name).string();
}

}  // namespace

std::string shippedLibraryFolder() { return dataFolder("library"); }

std::string shippedCatalogueFolder() { return dataFolder("catalogues"); }

std::string shippedModulePath() {
  constexpr const char* kModule = "veskOrvPlugin.so";
  std::error_code error;
  const fs::path root = programFolder().parent_path();
  const fs::path installed = root / "lib" / "vesk" / "plug-ins" / kModule;
  return fs::exists(installed, error) ? installed.string() : (root / "plug-ins" / kModule).string();
}

std::string defaultPreferencesFolder() {
  if (const char* folder = std::getenv("VESK_PREFS_DIR"); folder && *folder) return folder;
  const QString settings = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return settings.toStdString() + "/vesk";
}

std::string defaultPublishedFolder() {
  if (const char* folder = std::getenv("VESK_PUBLISHED_DIR"); folder && *folder) return folder;
  const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  return data.toStdString() + "/vesk/library";
}

std::string localeLanguage() {
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(variable);
    if (!value || !*value) continue;
    const std::string locale(value);
    const std::string language = locale.substr(0, locale.find_first_of(".@"));
    return language == "C" || language == "POSIX" ? "" : language;
  }
  return {};
}

}  // namespace vesk

#pragma once

#include <string>

namespace vesk {

// Where the program finds what is shipped with it: beside itself when it is installed, else in the
// folder from which it was built.

std::string shippedLibraryFolder();
std::string shippedCatalogueFolder();
std::string shippedModulePath();

/// Where the user's settings live: the environment variable `VESK_PREFS_DIR`, else `vesk` in the
/// user's configuration folder.
std::string defaultPreferencesFolder();

/// Where the compounds live that the user publishes: the environment variable `VESK_PUBLISHED_DIR`,
/// else `vesk/library` in the user's data folder.
std::string defaultPublishedFolder();

/// The language of the messages in the locale, such as "de_AT"; empty for none.
std::string localeLanguage();

}  // namespace vesk

#include "standalone/vesk/DataFolders.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <map>

namespace vesk {
namespace {

/// The language for these values of the variables; null for one that is not set.
std::string languageFor(const char* all, const char* messages, const char* lang) {
  const std::map<const char*, const char*> values{
      {"LC_ALL", all}, {"LC_MESSAGES", messages}, {"LANG", lang}};
  for (const auto& [name, value] : values) {
    if (value) {
      setenv(name, value, 1);
    } else {
      unsetenv(name);
    }
  }
  const std::string language = localeLanguage();
  for (const auto& [name, value] : values) unsetenv(name);
  return language;
}

TEST(LocaleLanguage, IsThatOfTheFirstVariableWithAValue) {
  EXPECT_EQ(languageFor("fr_FR", "de_DE", "it_IT"), "fr_FR");
  EXPECT_EQ(languageFor(nullptr, "de_DE", "it_IT"), "de_DE");
  EXPECT_EQ(languageFor("", "", "it_IT"), "it_IT");
}

TEST(LocaleLanguage, LeavesOutEncodingAndVariant) {
  EXPECT_EQ(languageFor(nullptr, nullptr, "de_AT.UTF-8"), "de_AT");
  EXPECT_EQ(languageFor(nullptr, nullptr, "de_DE@euro"), "de_DE");
  EXPECT_EQ(languageFor(nullptr, nullptr, "de"), "de");
}

TEST(LocaleLanguage, IsEmptyForNone) {
  EXPECT_EQ(languageFor(nullptr, nullptr, nullptr), "");
  EXPECT_EQ(languageFor(nullptr, nullptr, "C"), "");
  EXPECT_EQ(languageFor(nullptr, nullptr, "C.UTF-8"), "");
  EXPECT_EQ(languageFor("POSIX", "de_DE", nullptr), "");
}

TEST(ShippedFolders, AreThere) {
  EXPECT_TRUE(std::filesystem::is_directory(shippedLibraryFolder()));
  EXPECT_TRUE(std::filesystem::is_directory(shippedCatalogueFolder()));
}

TEST(ShippedModule, IsThere) { EXPECT_TRUE(std::filesystem::is_regular_file(shippedModulePath())); }

TEST(DefaultPreferencesFolder, IsThatOfTheVariable) {
  setenv("VESK_PREFS_DIR", "/some/where", 1);
  EXPECT_EQ(defaultPreferencesFolder(), "/some/where");
  unsetenv("VESK_PREFS_DIR");
}

TEST(DefaultPreferencesFolder, IsInTheUsersConfigurationOtherwise) {
  setenv("VESK_PREFS_DIR", "", 1);
  setenv("XDG_CONFIG_HOME", "/config", 1);
  EXPECT_EQ(defaultPreferencesFolder(), "/config/vesk");
  unsetenv("VESK_PREFS_DIR");
  unsetenv("XDG_CONFIG_HOME");
}

TEST(DefaultPublishedFolder, IsThatOfTheVariable) {
  setenv("VESK_PUBLISHED_DIR", "/some/where", 1);
  EXPECT_EQ(defaultPublishedFolder(), "/some/where");
  unsetenv("VESK_PUBLISHED_DIR");
}

TEST(DefaultPublishedFolder, IsInTheUsersDataOtherwise) {
  setenv("VESK_PUBLISHED_DIR", "", 1);
  setenv("XDG_DATA_HOME", "/data", 1);
  EXPECT_EQ(defaultPublishedFolder(), "/data/vesk/library");
  unsetenv("VESK_PUBLISHED_DIR");
  unsetenv("XDG_DATA_HOME");
}

}  // namespace
}  // namespace vesk

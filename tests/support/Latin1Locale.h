#pragma once

#include <gtest/gtest.h>
#include <langinfo.h>

#include <clocale>
#include <cstdlib>
#include <string>

#include "testPaths.h"

namespace hosttest {

/// While it lives, narrow text is Latin-1. Fails the test when the locale, which the build makes,
/// is not there.
class Latin1Locale {
 public:
  Latin1Locale() : former_(std::setlocale(LC_CTYPE, nullptr)) {
    setenv("LOCPATH", VESK_BUILD_DIR "/locale", 1);
    EXPECT_NE(std::setlocale(LC_CTYPE, "en_US.ISO-8859-1"), nullptr)
        << "there is no Latin-1 locale in " VESK_BUILD_DIR "/locale";
    EXPECT_STREQ(nl_langinfo(CODESET), "ISO-8859-1");
  }
  ~Latin1Locale() {
    std::setlocale(LC_CTYPE, former_.c_str());
    unsetenv("LOCPATH");
  }
  Latin1Locale(const Latin1Locale&) = delete;
  Latin1Locale& operator=(const Latin1Locale&) = delete;

 private:
  const std::string former_;
};

}  // namespace hosttest

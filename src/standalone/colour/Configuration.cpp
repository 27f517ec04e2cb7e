#include "standalone/colour/Configuration.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "standalone/host/language/Utf8.h"

namespace vesk::colour {
namespace {

/// Collects, while it lives, what OpenColorIO would print to the terminal.
class LogCapture {
 public:
  LogCapture() {
    OCIO::SetLoggingFunction([this](const char* text) { text_ += text; });
  }
  ~LogCapture() { OCIO::ResetToDefaultLoggingFunction(); }
  LogCapture(const LogCapture&) = delete;
  LogCapture& operator=(const LogCapture&) = delete;

  /// Without the line end.
  std::string text() const { return text_.substr(0, text_.find_last_not_of('\n') + 1); }

 private:
  std::string text_;
};

void requireFile(const std::string& path) {
  if (!std::filesystem::exists(path)) throw OCIO::Exception("there is no such file");
  if (!std::filesystem::is_regular_file(path)) throw OCIO::Exception("it is not a file");
}

/// The names in the file become texts of the host.
void requireUtf8(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw OCIO::Exception("it cannot be opened");
  const std::string text(std::istreambuf_iterator<char>(file), {});
  const std::size_t offset = utf8::findInvalid(text);
  if (offset == utf8::kValid) return;
  const std::string reason = "its text is not UTF-8 at byte " + std::to_string(offset);
  throw OCIO::Exception(reason.c_str());
}

void requireUsable(const OCIO::Config& config) {
  config.validate();
  if (!config.hasRole(OCIO::ROLE_SCENE_LINEAR)) {
    throw OCIO::Exception("it lacks the role 'scene_linear'");
  }
}

OCIO::ConstConfigRcPtr readFile(const std::string& path) {
  requireFile(path);
  requireUtf8(path);
  OCIO::ConstConfigRcPtr config = OCIO::Config::CreateFromFile(path.c_str());
  requireUsable(*config);
  return config;
}

OCIO::ConstConfigRcPtr readShipped() {
  std::istringstream text(kShippedConfiguration);
  return OCIO::Config::CreateFromStream(text);
}

}  // namespace

std::string configurationPath(const std::string& option) {
  const char* environment = std::getenv(OCIO::OCIO_CONFIG_ENVVAR);
  return option.empty() && environment ? environment : option;
}

Configuration loadConfiguration(const std::string& path, const WarningSink& warn) {
  if (path.empty()) return {readShipped(), ""};
  const std::string name = "colour configuration '" + utf8::repaired(path) + "'";
  try {
    const LogCapture log;
    Configuration result{readFile(path), path};
    if (!log.text().empty()) warn("In the " + name + ": " + log.text());
    return result;
  } catch (const std::exception& error) {
    warn("The " + name + " cannot be used, the shipped one is: " + utf8::repaired(error.what()));
  }
  return {readShipped(), ""};
}

}  // namespace vesk::colour

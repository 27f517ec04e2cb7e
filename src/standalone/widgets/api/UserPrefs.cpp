#include "platform/orvUI_1_0/UserPrefs.h"

#include "standalone/widgets/colour/ColourRegistry.h"
#include "standalone/widgets/preferences/Preferences.h"

namespace orvUI_v1 {

using orvuilib::ColourRegistry;
using orvuilib::Preferences;

QJsonDocument getUserPrefs(const QJsonDocument& defaults) {
  QJsonObject all = defaults.object();
  const Preferences& preferences = Preferences::instance();
  for (auto at = preferences.all().begin(); at != preferences.all().end(); ++at) {
    all.insert(at.key(), *at);
  }
  const bool nothing = all.isEmpty() && !preferences.everHadAny();
  return nothing ? QJsonDocument() : QJsonDocument(all);
}

void setUserPrefs(const QJsonDocument& preferences) {
  if (!preferences.isObject()) return;
  Preferences::instance().replaceAll(preferences.object());
  ColourRegistry::instance().restorePreferences();
}

void setNumberOfMouseButtons(int count) { Preferences::instance().setMouseButtons(count); }

}  // namespace orvUI_v1

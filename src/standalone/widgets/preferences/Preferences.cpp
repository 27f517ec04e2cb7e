#include "standalone/widgets/preferences/Preferences.h"

#include "standalone/widgets/hooks/HookRegistry.h"

namespace orvuilib {

using orvUI_v1::AppServicesHook;

/// Never destroyed: an editor may still ask while the program goes down.
Preferences& Preferences::instance() {
  static Preferences& only = *new Preferences;
  return only;
}

/// What somebody gave counts, whatever is stored.
void Preferences::replaceAll(const QJsonObject& preferences) {
  loadedRound_ = HookRegistry::servicesRound();
  if (preferences == all_) return;
  all_ = preferences;
  everHadAny_ = true;
  emit changed();
}

/// What is stored is never overwritten by what a session knows that did not look there.
void Preferences::loadOnce() {
  AppServicesHook* hook = HookRegistry::appServicesHook();
  if (!hook || loadedRound_ == HookRegistry::servicesRound()) return;
  loadedRound_ = HookRegistry::servicesRound();
  hook->syncUserPrefs(AppServicesHook::kLoadPrefs);
}

QJsonObject Preferences::section(const QString& name) {
  loadOnce();
  return all_.value(name).toObject();
}

void Preferences::setSection(const QString& name, const QJsonObject& section) {
  loadOnce();
  QJsonObject all = all_;
  if (section.isEmpty()) {
    all.remove(name);
  } else {
    all.insert(name, section);
  }
  if (all == all_) return;
  replaceAll(all);
  if (AppServicesHook* hook = HookRegistry::appServicesHook()) {
    hook->syncUserPrefs(AppServicesHook::kSavePrefs);
  }
}

void Preferences::setMouseButtons(int count) {
  if (count < 1 || count > 3 || count == mouseButtons_) return;
  mouseButtons_ = count;
  emit changed();
}

}  // namespace orvuilib

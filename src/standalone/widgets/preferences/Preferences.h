#pragma once

#include <QJsonObject>
#include <QObject>
#include <QString>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// What the user prefers, for all editors together. Each editor keeps a section of its own, an
/// object under a key, of what differs from the editor's start. What the program stored is loaded
/// by way of the hook when a section is first asked for or set, and again after another hook came.
class ORVUI_EXPORT Preferences final : public QObject {
  Q_OBJECT

 public:
  static Preferences& instance();

  const QJsonObject& all() const { return all_; }

  /// Whether there ever were any: none left is something to store too.
  bool everHadAny() const { return everHadAny_; }

  void replaceAll(const QJsonObject& preferences);

  /// Empty when there is none, or when something else than an object stands there.
  QJsonObject section(const QString& name);

  /// Replaces a section and stores all preferences by way of the hook; an empty section is none.
  /// Nothing happens when the section is like that already.
  void setSection(const QString& name, const QJsonObject& section);

  /// 1 to 3.
  int mouseButtons() const { return mouseButtons_; }

  /// Another number than 1 to 3 changes nothing.
  void setMouseButtons(int count);

 signals:
  void changed();

 private:
  Preferences() = default;
  void loadOnce();

  QJsonObject all_;

  /// Of the hook that they were loaded by; see `HookRegistry::servicesRound`.
  unsigned int loadedRound_ = 0;
  bool everHadAny_ = false;
  int mouseButtons_ = 3;
};

}  // namespace orvuilib

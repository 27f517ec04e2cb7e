#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace vesk {

class MessageChannel;

/// Named values that outlive the program: what a user or a module wants to find again next time.
///
/// The file is `optionVars.json` in a folder, read on first need. A save reads it again and changes
/// only what this session set or removed since its last save, so that programs can share it. A
/// damaged file is moved aside; one that cannot be read is left alone, and nothing can be set.
class OptionVariables {
 public:
  using Value = std::variant<int, double, std::string>;

  /// Without a folder the values live in memory only. While lines run there is a save once in
  /// `interval`.
  OptionVariables(std::string folder, MessageChannel& messages,
                  std::chrono::milliseconds interval = std::chrono::seconds(1));
  ~OptionVariables();  ///< saves
  OptionVariables(const OptionVariables&) = delete;
  OptionVariables& operator=(const OptionVariables&) = delete;

  /// Makes sure that the values are there. False, with the reason told, when the file cannot be
  /// read; each call tries again.
  bool read();

  /// Null when there is none of that name; valid until the next change or save.
  const Value* find(std::string_view name);

  /// False, with the reason told and the value as before, when it cannot be kept: it saves if a
  /// save is due or the last one failed.
  bool set(const std::string& name, Value value);

  /// Like `set`; also false when there is none of that name.
  bool remove(std::string_view name);

  /// Sorted by their bytes.
  std::vector<std::string> names();

  /// Saves what has changed. A failure is told once, until a save works.
  void saveIfChanged();

  /// The same, but not sooner than the interval after the last try.
  void saveSometimes();

 private:
  using Clock = std::chrono::steady_clock;
  using Values = std::map<std::string, Value, std::less<>>;
  enum class File { Unread, Unreadable, Read };

  void readOnce();
  bool change(const std::string& name, std::optional<Value> value);
  void put(const std::string& name, std::optional<Value> value);
  std::string save();
  std::string write();
  std::string load(std::optional<Values>& values);
  std::string moveAside(std::string_view damage);
  void takeOver(Values stored);
  void tellUnsaved(const std::string& reason);
  std::string path() const;

  const std::string folder_;
  MessageChannel& messages_;
  const Clock::duration interval_;
  Values values_;
  std::set<std::string> changed_;  ///< names set or removed since the last save
  File file_ = File::Unread;
  Clock::time_point nextSave_ = Clock::time_point::min();
  bool saveFailed_ = false;  ///< the last one
};

}  // namespace vesk

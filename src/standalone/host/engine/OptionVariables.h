#pragma once

#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace vesk {

class MessageChannel;

/// Named values that outlive the program: what a user or a module wants to find again next time.
///
/// The file is `optionVars.json` in a folder, read on first need. A damaged file is moved aside;
/// one that cannot be read is left alone, and changes then stay in memory.
class OptionVariables {
 public:
  using Value = std::variant<int, double, std::string>;

  /// Without a folder the values live in memory only.
  OptionVariables(std::string folder, MessageChannel& messages);
  ~OptionVariables();  ///< saves
  OptionVariables(const OptionVariables&) = delete;
  OptionVariables& operator=(const OptionVariables&) = delete;

  /// Null when there is none of that name; valid until the next change.
  const Value* find(std::string_view name);

  void set(const std::string& name, Value value);

  /// False when there is none of that name.
  bool remove(std::string_view name);

  /// Sorted by their bytes.
  std::vector<std::string> names();

  /// Replaces the file at once if a value has changed. A refusal is shown once, until a save works.
  void saveIfChanged();

 private:
  enum class File { Unread, Usable, Untouchable };

  void readOnce();
  void leaveAlone(std::string_view reason);
  void moveAside(std::string_view reason);
  void warnOnce(const std::string& text);
  std::string write() const;
  std::string path() const;

  const std::string folder_;
  MessageChannel& messages_;
  std::map<std::string, Value, std::less<>> values_;
  File file_ = File::Unread;
  bool changed_ = false;
  bool warned_ = false;  ///< that changes are not saved
};

}  // namespace vesk

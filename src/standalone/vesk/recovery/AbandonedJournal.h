#pragma once

#include <string>
#include <vector>

namespace vesk {

/// The journal of a program that ended abruptly, which no other program will take up while this
/// object is there.
class AbandonedJournal {
 public:
  struct Line {
    std::string text;
    bool undo = true;     ///< its edits entered the undo queue
    bool display = true;  ///< it was echoed
  };

  /// A scene that was opened: its file may say something else by now.
  struct Scene {
    std::string path;
    std::string copy;  ///< the file that has the bytes that were read
  };

  /// Journals of which the lock is free, the newest first. Those without a line are removed.
  static std::vector<AbandonedJournal> listIn(const std::string& folder);

  AbandonedJournal(AbandonedJournal&& other) noexcept;
  AbandonedJournal& operator=(AbandonedJournal&& other) noexcept;
  ~AbandonedJournal();

  /// Those that were finished, in order.
  const std::vector<Line>& lines() const { return lines_; }

  /// In the order in which they were opened.
  const std::vector<Scene>& scenes() const { return scenes_; }

  /// When the program began, such as "2026-11-21 23:45", in local time.
  std::string began() const;

  /// Takes it, and the scenes, from the disk.
  void remove();

 private:
  AbandonedJournal(std::string path, int lock) : path_(std::move(path)), lock_(lock) { read(); }

  void read();

  std::string path_;
  int lock_;  ///< descriptor
  std::vector<Line> lines_;
  std::vector<Scene> scenes_;
};

}  // namespace vesk

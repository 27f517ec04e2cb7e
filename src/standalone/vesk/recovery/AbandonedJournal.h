#pragma once

#include <string>
#include <vector>

namespace vesk {

/// The journal of a program that ended abruptly, which no other program will take up while this
/// object is there.
class AbandonedJournal {
 public:
  /// What a line did with the file of a scene.
  struct FileUse {
    std::string path;
    bool saves = false;  ///< else it opens
    bool succeeded = false;
    std::string copy = {};  ///< the file with the bytes that were read, where some were
  };

  struct Line {
    std::string text;
    bool undo = true;                ///< its edits entered the undo queue
    bool display = true;             ///< it was echoed
    std::vector<FileUse> uses = {};  ///< in order
  };

  /// Journals of which the lock is free, the newest first. Those without a line are removed, and
  /// those of a recovery that was cut off, since what it recovered is still there.
  static std::vector<AbandonedJournal> listIn(const std::string& folder);

  AbandonedJournal(AbandonedJournal&& other) noexcept;
  AbandonedJournal& operator=(AbandonedJournal&& other) noexcept;
  ~AbandonedJournal();

  const std::string& path() const { return path_; }

  /// Those that were finished, in order.
  const std::vector<Line>& lines() const { return lines_; }

  /// In which the program worked; empty when that is unknown.
  const std::string& folder() const { return folder_; }

  /// When the program began, such as "2026-11-21 23:45", in local time.
  std::string began() const;

  /// Takes it, and the scenes, from the disk.
  void remove();

 private:
  AbandonedJournal(std::string path, int lock) : path_(std::move(path)), lock_(lock) {}

  bool read();
  void readComment(std::string_view comment, Line& next);
  void readMark(std::string_view mark, const std::string& path, Line& next);

  std::string path_;
  int lock_;  ///< descriptor
  std::string folder_;
  std::string recovering_;  ///< the journal that was being recovered at the end
  int copies_ = 0;
  std::vector<Line> lines_;
};

}  // namespace vesk

#pragma once

#include <string>
#include <vector>

/// While it lives, the commands make editors that do nothing but note what they are asked for.
class EditorSpies {
 public:
  EditorSpies();
  ~EditorSpies();
  EditorSpies(const EditorSpies&) = delete;
  EditorSpies& operator=(const EditorSpies&) = delete;

  /// The calls since it was last asked, the making of an editor among them.
  std::vector<std::string> takeCalls();
};

// The lines that have been told, and the one among them that is waited for.
#pragma once

#include <string>
#include <vector>

namespace hands {

class Told {
 public:
  void Add(const std::string& line) { lines_.push_back(line); }

  /// Whether one that begins so has come since the last one that was waited for. Then that is this one.
  bool Reaches(const std::string& text) {
    while (unread_ < lines_.size())
      if (lines_[unread_++].starts_with(text)) return true;
    return false;
  }

 private:
  std::vector<std::string> lines_;
  std::size_t unread_ = 0;
};

}  // namespace hands

#include "sounds/recordings.h"

#include <algorithm>

namespace thistle {

namespace {

// Locales must not matter: some fold the letter i to something else.
char UpperCase(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

}  // namespace

const desktop::WaveImage* FindRecording(std::string_view name) {
  const auto recordings = AllRecordings();
  const auto found = std::ranges::find_if(recordings, [name](const desktop::WaveImage& image) {
    return std::ranges::equal(image.name, name, {}, UpperCase, UpperCase);
  });
  return found == recordings.end() ? nullptr : &*found;
}

}  // namespace thistle

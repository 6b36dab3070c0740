#include "desktop/common/telling.h"

namespace desktop::common {

std::string Telling::News() {
  const std::vector<std::string> sentences = form_.Sentences();
  told_.resize(sentences.size());
  std::string news;
  for (std::size_t i = 0; i < sentences.size(); ++i) {
    if (sentences[i] == told_[i] || sentences[i].empty()) continue;
    news += (news.empty() ? "" : " ") + sentences[i];
  }
  told_ = sentences;
  return news;
}

}  // namespace desktop::common

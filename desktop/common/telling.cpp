#include "desktop/common/telling.h"

#include "desktop/common/walk.h"

namespace desktop::common {

namespace {

void Append(std::string& words, const std::string& sentence) {
  if (sentence.empty()) return;
  words += (words.empty() ? "" : " ") + sentence;
}

}  // namespace

std::string Telling::News() {
  const std::vector<Sentence> sentences = form_.Sentences();
  told_.resize(sentences.size());
  std::string news;
  for (std::size_t i = 0; i < sentences.size(); ++i)
    if (sentences[i] != told_[i]) Append(news, sentences[i].Words);
  told_ = sentences;
  return news;
}

std::string InWords(const Form& form) {
  std::string words;
  if (const auto stop = StopWithKeyboard(form))
    words = stop->Name + (stop->Value.empty() ? "." : ", " + stop->Value + ".");
  for (const Sentence& sentence : form.Sentences()) Append(words, sentence.Words);
  return words;
}

}  // namespace desktop::common

// What there is to tell of a form to a player who hears it.
#pragma once

#include <string>
#include <vector>

#include "desktop/form.h"

namespace desktop::common {

/// Asks the form for its words only when it is asked for news itself: where nobody listens it costs nothing.
class Telling {
 public:
  explicit Telling(const Form& form) : form_(form) {}

  /// The sentences that have changed since the last call, in their order; at first all of them. Empty: no news.
  std::string News();

 private:
  const Form& form_;
  std::vector<Sentence> told_;
};

/// All that there is to say of a form now: the stop that has the keyboard, then every sentence.
std::string InWords(const Form& form);

}  // namespace desktop::common

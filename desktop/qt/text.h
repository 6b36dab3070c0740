// Between the rules' UTF-8 and Qt's strings.
#pragma once

#include <QString>
#include <string_view>

namespace desktop::qt {

inline QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A text of several lines: the rules end a line as the layout's platform does, Qt with a line feed.
inline QString Lines(std::string_view text) { return Text(text).remove(u'\r'); }

}  // namespace desktop::qt

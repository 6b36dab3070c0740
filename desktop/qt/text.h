// Between the rules' UTF-8 and Qt's strings.
#pragma once

#include <QString>
#include <string_view>

namespace desktop::qt {

inline QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The rules end a line with a carriage return and a line feed, Qt with the latter alone.
inline QString WithoutReturns(std::string_view text) { return Text(text).remove(u'\r'); }

}  // namespace desktop::qt

#include "desktop/qt/fonts.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QResource>
#include <QStringList>
#include <utility>

#include "desktop/qt/text.h"

namespace desktop::qt {

namespace {

void LoadCarried(const Font& font) {
  static constexpr const char* kStyles[] = {"Regular", "Bold", "Italic", "BoldItalic"};
  static bool loaded[] = {false, false, false, false};
  const int style = (font.bold ? 1 : 0) + (font.italic ? 2 : 0);
  if (std::exchange(loaded[style], true)) return;
  // Straight from the program's own pages, without a copy.
  const QResource file(QStringLiteral(":/fonts/LiberationSerif-%1.ttf").arg(QLatin1String(kStyles[style])));
  const auto* data = reinterpret_cast<const char*>(file.data());
  QFontDatabase::addApplicationFontFromData(QByteArray::fromRawData(data, static_cast<qsizetype>(file.size())));
}

}  // namespace

QFont ToQt(const Font& font) {
  LoadCarried(font);
  QFont type;
  type.setFamilies({QStringLiteral("Liberation Serif"), QStringLiteral("Times New Roman"), QStringLiteral("serif")});
  type.setPixelSize(qRound(font.PixelSize()));
  type.setBold(font.bold);
  type.setItalic(font.italic);
  type.setUnderline(font.underline);
  return type;
}

double TypeMeasure::Advance(std::string_view text, const Font& font) const {
  return QFontMetricsF(ToQt(font)).horizontalAdvance(Text(text));
}

double TypeMeasure::Height(const Font& font) const { return QFontMetricsF(ToQt(font)).height(); }

double TypeMeasure::Spacing(const Font& font) const { return qCeil(QFontMetricsF(ToQt(font)).lineSpacing()); }

}  // namespace desktop::qt

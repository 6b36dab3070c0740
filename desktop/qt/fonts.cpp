#include "desktop/qt/fonts.h"

#include <QFontDatabase>
#include <QStringList>

namespace desktop::qt {

void LoadCarriedFonts() {
  for (const char* style : {"Regular", "Bold", "Italic", "BoldItalic"})
    QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/LiberationSerif-%1.ttf").arg(QLatin1String(style)));
}

QFont ToQt(const Font& font) {
  QFont type;
  type.setFamilies({QStringLiteral("Liberation Serif"), QStringLiteral("Times New Roman"), QStringLiteral("serif")});
  type.setPixelSize(qRound(font.PixelSize()));
  type.setBold(font.bold);
  type.setItalic(font.italic);
  type.setUnderline(font.underline);
  return type;
}

}  // namespace desktop::qt

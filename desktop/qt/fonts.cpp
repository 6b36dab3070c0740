#include "desktop/qt/fonts.h"

#include <QFontDatabase>
#include <QLibrary>
#include <QResource>
#include <QStringList>
#include <thread>
#include <utility>

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

void ReadSystemFontsAhead() {
#ifdef Q_OS_LINUX
  std::thread([] {
    using Init = int (*)();
    // The library allows this on any thread, also while the toolkit asks for the same.
    if (const auto init = reinterpret_cast<Init>(QLibrary::resolve(QStringLiteral("libfontconfig.so.1"), "FcInit")))
      init();
  }).detach();
#endif
}

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

}  // namespace desktop::qt

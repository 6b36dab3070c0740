#include "desktop/qt/picture_store.h"

#include <QFile>
#include <QImage>

#include "desktop/common/scale.h"
#include "desktop/qt/text.h"

namespace desktop::qt {

namespace {

QString FileName(const Picture& picture, double scale) {
  const QString suffix = scale == 1 ? QString() : QStringLiteral("@%1x").arg(scale);
  return QStringLiteral(":/pictures/%1%2.png").arg(Text(picture.name), suffix);
}

QImage Load(const Picture& picture, common::Size size) {
  const auto isCarried = [&](double scale) { return QFile::exists(FileName(picture, scale)); };
  const QString name = FileName(picture, common::CarriedScale(picture.width, size.width, isCarried));
  QImage image(name);
  if (image.isNull()) {
    qCritical("%s does not load", qUtf8Printable(name));
    image = QImage(size.width, size.height, QImage::Format_RGB32);
    image.fill(Qt::magenta);
  }
  image.setDevicePixelRatio(1);
  // In an indexed format it would come back from scaling in the few colours of a cube.
  return std::move(image).convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                                  : QImage::Format_RGB32);
}

}  // namespace

const QPixmap& PictureStore::Sized(const Picture& picture, common::Size size) {
  const auto [at, fresh] = pixmaps_.try_emplace({&picture, size.width, size.height});
  if (!fresh) return at->second;
  QImage image = Load(picture, size);
  const QSize wanted(size.width, size.height);
  if (common::IsCut({image.width(), image.height()}, size))
    image = image.copy({{}, wanted});
  else if (image.size() != wanted)
    image = image.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  at->second = QPixmap::fromImage(std::move(image));
  return at->second;
}

}  // namespace desktop::qt

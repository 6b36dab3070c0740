#include "desktop/qt/picture_store.h"

#include <QImage>
#include <QPixmapCache>

#include "desktop/qt/text.h"

namespace desktop::qt {

namespace {

QImage Load(const Picture& picture, bool twice) {
  QImage image(
      QStringLiteral(":/pictures/%1%2.png").arg(Text(picture.name), twice ? QStringLiteral("@2x") : QString()));
  Q_ASSERT(!image.isNull());
  image.setDevicePixelRatio(1);
  return image;
}

}  // namespace

// The toolkit's own store of pixmaps would wake an idle program half a minute later, to look through itself.
PictureStore::PictureStore() { QPixmapCache::setCacheLimit(0); }

const QPixmap& PictureStore::At(const Picture& picture, double ratio) {
  return Sized(picture,
               {Device(static_cast<float>(picture.width), ratio), Device(static_cast<float>(picture.height), ratio)});
}

const QPixmap& PictureStore::Stretched(const Picture& picture, QSize size) { return Sized(picture, size); }

const QPixmap& PictureStore::Sized(const Picture& picture, QSize size) {
  const auto [at, fresh] = pixmaps_.try_emplace({&picture, size.width(), size.height()});
  if (!fresh) return at->second;
  QImage image = Load(picture, size.width() > picture.width);
  if (image.size() != size) image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  at->second = QPixmap::fromImage(std::move(image));
  return at->second;
}

}  // namespace desktop::qt

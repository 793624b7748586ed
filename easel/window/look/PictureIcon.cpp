// Keeps the file's name and the sizes drawn so far.
#include "easel/window/look/PictureIcon.h"

#include "easel/window/look/PictureFile.h"

#include <QIconEngine>
#include <QPainter>

#include <map>
#include <utility>

namespace easel::window {
namespace {

constexpr float kDisabledOpacity = 0.4F;

class PictureEngine : public QIconEngine {
  public:
    explicit PictureEngine(std::filesystem::path file) : file_(std::move(file)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const double ratio = painter->device()->devicePixelRatioF();
        painter->save();
        if (mode == QIcon::Disabled)
            painter->setOpacity(kDisabledOpacity);
        painter->drawImage(rect, drawn(rect.size() * ratio));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode, QIcon::State) override {
        return QPixmap::fromImage(drawn(size));
    }

    QIconEngine* clone() const override { return new PictureEngine(*this); }

  private:
    const QImage& drawn(QSize size) {
        const auto [at, isNew] = drawn_.try_emplace({size.width(), size.height()});
        if (isNew)
            at->second = pictureFile(file_, size, 1);
        return at->second;
    }

    std::filesystem::path file_;
    std::map<std::pair<int, int>, QImage> drawn_;
};

} // namespace

QIcon pictureIcon(const std::filesystem::path& file) {
    if (pictureFile(file, {1, 1}, 1).isNull())
        return {};
    return QIcon(new PictureEngine(file));
}

} // namespace easel::window

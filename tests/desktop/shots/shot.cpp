#include "desktop/shots/shot.h"

#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <stdexcept>

namespace horavex {

namespace {

/// What of the windows lies on the screen.
QRect Around(const std::vector<QWidget*>& windows) {
    QRect around;
    for (const QWidget* window : windows) {
        around |= window->geometry();
    }
    return around & windows.front()->screen()->geometry();
}

QImage Photograph(const std::vector<QWidget*>& windows) {
    const QRect around = Around(windows);
    const double ratio = windows.front()->devicePixelRatioF();
    QImage image(around.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    for (QWidget* window : windows) {
        painter.drawPixmap(window->geometry().topLeft() - around.topLeft(), window->grab());
    }
    return image;
}

}  // namespace

bool Save(const QImage& picture, const QString& file) {
    constexpr int kSmallest = 0;
    const bool isOpaque = picture.pixelColor(0, 0).alpha() == 255;
    return picture.convertToFormat(isOpaque ? QImage::Format_RGB888 : QImage::Format_ARGB32)
        .save(file, "PNG", kSmallest);
}

Shot ShotOf(const Scene& scene, const std::string& language) {
    Shot shot;
    Stage stage(language, scene.setting, [&](const std::vector<QWidget*>& windows) {
        shot = {QString::fromStdString(scene.name), windows.back()->windowTitle(),
                Photograph(windows)};
    });
    scene.play(stage);
    for (const auto& message : stage.ports.dialogs.messages) {
        throw std::runtime_error(scene.name + " is told: " + message.text);
    }
    if (shot.image.isNull()) {
        throw std::runtime_error("nothing to see in " + scene.name);
    }
    return shot;
}

}  // namespace horavex

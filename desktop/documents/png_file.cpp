#include "desktop/documents/png_file.h"

#include <QBuffer>
#include <QImage>

#include "desktop/documents/drawing_steps.h"
#include "desktop/form_window/twips.h"
#include "platform/platform.h"

namespace horavex {

namespace {

constexpr int kPictureScale = 2;  // pixels of a saved picture for each of the screen
constexpr int kTextPixels = 12;   // of the screen, as in an SVG

QFont TextFont() {
    QFont font;
    font.setPixelSize(kTextPixels);
    return font;
}

}  // namespace

void WritePng(const std::string& path, const Drawing& drawing, double width, double height) {
    const QSize size(PixelsOf(width), PixelsOf(height));
    QImage image(size * kPictureScale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(kPictureScale);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        painter.setFont(TextFont());
        DrawSteps(painter, QRectF(QPointF(), size), {width, height}, drawing);
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    WriteChosenFile(Ports().files, path, BytesOf(buffer.data().toStdString()));
}

}  // namespace horavex

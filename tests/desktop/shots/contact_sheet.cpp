#include "desktop/shots/contact_sheet.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

namespace horavex {

namespace {

constexpr int kWidth = 4000;  // of the sheet, pixels
constexpr int kGap = 24;

struct Place {
    const Shot* shot;
    QPoint corner;  // of the caption
};

QSize SizeOn(const Shot& shot) {
    return shot.image.size() / shot.image.devicePixelRatio();
}

int CaptionHeight() {
    return QFontMetrics(QApplication::font()).height() + kGap / 4;
}

/// Rows that are filled from the left, the tall shots beside each other.
std::vector<Place> PlacesOf(const std::vector<Shot>& shots, int& height) {
    std::vector<Place> places;
    QPoint corner(kGap, kGap);
    int row = 0;  // height of the row so far
    for (const Shot& shot : shots) {
        const QSize size = SizeOn(shot);
        if (corner.x() + size.width() + kGap > kWidth) {
            corner = QPoint(kGap, corner.y() + row + kGap);
            row = 0;
        }
        places.push_back({&shot, corner});
        corner.rx() += size.width() + kGap;
        row = std::max(row, size.height() + CaptionHeight());
    }
    height = corner.y() + row + kGap;
    return places;
}

}  // namespace

QImage ContactSheet(const std::vector<Shot>& shots) {
    int height = 0;
    const std::vector<Place> places = PlacesOf(shots, height);
    QImage sheet(kWidth, height, QImage::Format_RGB32);
    sheet.fill(Qt::gray);
    QPainter painter(&sheet);
    painter.setFont(QApplication::font());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (const auto& [shot, corner] : places) {
        const QSize size = SizeOn(*shot);
        painter.drawText(QRect(corner, QSize(size.width(), CaptionHeight())), Qt::AlignLeft,
                         shot->name + QStringLiteral("  ") + shot->title);
        painter.drawImage(QRect(corner + QPoint(0, CaptionHeight()), size), shot->image);
    }
    return sheet;
}

}  // namespace horavex

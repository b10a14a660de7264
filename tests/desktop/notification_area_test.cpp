#include "desktop/ports/notification_area.h"

#include <QImage>
#include <QPainter>

#include "desktop/ports/emblem.h"

namespace horavex {
namespace {

TEST(NotificationArea, IsAbsentOnAPlatformWithoutAScreen) {
    EXPECT_EQ(NotificationArea().Present(), AreaKind::kNone);
}

TEST(Emblem, StaysRoundWhereAPanelGivesItNoSquare) {
    QImage wide(44, 22, QImage::Format_ARGB32);
    wide.fill(Qt::transparent);
    QPainter painter(&wide);
    Emblem().paint(&painter, wide.rect());
    painter.end();
    EXPECT_EQ(wide.pixelColor(8, 11).alpha(), 0);
    EXPECT_EQ(wide.pixelColor(35, 11).alpha(), 0);
    EXPECT_EQ(wide.pixelColor(22, 11).alpha(), 255);
    EXPECT_GT(wide.pixelColor(13, 11).alpha(), 0) << "it fills what there is";
    EXPECT_GT(wide.pixelColor(22, 1).alpha(), 0);
}

TEST(Emblem, IsStruckOutAndWithoutItsGoldWhileItIsQuiet) {
    for (const int side : {16, 22, 64}) {
        const auto at = [side](const QIcon& icon, double x, double y) {
            return icon.pixmap(QSize(side, side), 1.0)
                .toImage()
                .pixelColor(static_cast<int>(x * side), static_cast<int>(y * side));
        };
        const QColor gold = at(Emblem(), 0.22, 0.55);  // of the crescent
        const QColor grey = at(QuietEmblem(), 0.22, 0.55);
        EXPECT_GT(gold.saturation(), 100) << side;
        EXPECT_LT(grey.saturation(), 50) << side;
        EXPECT_GT(at(QuietEmblem(), 0.5, 0.5).saturation(), 100) << side << ", the bar";
    }
}

}  // namespace
}  // namespace horavex

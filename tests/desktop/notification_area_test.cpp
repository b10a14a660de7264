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

}  // namespace
}  // namespace horavex

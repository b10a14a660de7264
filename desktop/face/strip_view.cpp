#include "desktop/face/strip_view.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/face/countdown_line.h"
#include "desktop/face/face_button.h"
#include "desktop/face/face_day.h"
#include "desktop/face/fitted_text.h"
#include "desktop/face/palette.h"
#include "desktop/face/text_line.h"
#include "sky/day_sky.h"

namespace horavex {

namespace {

// Pixels.
constexpr QRect kStrip(0, 0, 360, 44);
constexpr QRect kNext(14, 2, 190, 40);
constexpr QRect kCountdown(204, 2, 114, 40);
constexpr QRect kWhole(326, 9, 26, 26);

constexpr int kNextSize = 17;
constexpr int kGap = 10;

const TextLine::Look kNextLook{kNextSize, kCream, Qt::AlignLeading | Qt::AlignVCenter};
const TextLine::Look kCountdownLook{25, kGold, Qt::AlignCenter};

}  // namespace

StripView::StripView()
    : ground_({kStrip, {}, {}, {}}),
      name_(new TextLine(this, kNextLook)),
      time_(new TextLine(this, kNextLook)),
      countdown_(new TextLine(this, kCountdownLook)),
      whole_(new SignButton(this, SignButton::Sign::kWhole)) {
    setFixedSize(kStrip.size());
    setContextMenuPolicy(Qt::PreventContextMenu);
    countdown_->setGeometry(kCountdown);
    whole_->setGeometry(kWhole);
    setFocusProxy(whole_);
    whole_->setObjectName(QStringLiteral("IDC_FS_small"));
    connect(whole_, &QAbstractButton::clicked, this, [this] { Tell("IDC_FS_small"); });
}

void StripView::ShowDay(const FaceDay& day) {
    name_->ShowText(day.rows.at(day.next).name);
    time_->ShowText(day.cells.at(day.next).time);
    PlaceTexts();
    countdown_->ShowText(CountdownDigits(day.seconds));
    if (day.sky != nullptr && day.sky != sky_) {
        sky_ = day.sky;
        ground_.ShowSun(sky_->sunAltitude);
        update();
    }
}

// All of it runs in the direction of the name. Behind that stands the time, which is never cut.
void StripView::PlaceTexts() {
    const bool fromRight = DirectionOf(name_->text()) == Qt::RightToLeft;
    const auto turned = [fromRight](QRect place) {
        if (fromRight) {
            place.moveRight(kStrip.right() - place.left());
        }
        return place;
    };
    const auto widthOf = [](const TextLine& line) {
        const QFontMetricsF metrics(FaceFont(kNextSize));
        return static_cast<int>(std::ceil(metrics.horizontalAdvance(line.text())));
    };
    const int time = std::min(widthOf(*time_), kNext.width());
    const int name = std::clamp(widthOf(*name_), 0, std::max(0, kNext.width() - kGap - time));
    const int timeAt = kNext.left() + name + kGap;
    name_->setGeometry(turned({kNext.left(), kNext.top(), name, kNext.height()}));
    time_->setGeometry(turned({timeAt, kNext.top(), time, kNext.height()}));
    countdown_->setGeometry(turned(kCountdown));
    whole_->setGeometry(turned(kWhole));
}

void StripView::NameSign(const QString& whole) {
    whole_->setAccessibleName(whole);
    whole_->setToolTip(whole);
}

void StripView::Tell(const char* command) {
    if (onCommand) {
        onCommand(command);
    }
}

void StripView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        Tell("IDC_FS_drag");
    }
}

void StripView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    ground_.Paint(painter, event->rect(), devicePixelRatioF());
}

}  // namespace horavex

#include "desktop/face/azan_view.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include "desktop/face/face_button.h"
#include "desktop/face/palette.h"
#include "desktop/face/sky_colours.h"
#include "desktop/face/text_line.h"
#include "desktop/ports/display.h"

namespace horavex {

namespace {

// All places in pixels of the part that is seen.
constexpr QSize kFace(360, 226);
constexpr int kBelowScreen = 27;  // of its height, where the window stands where it is put
constexpr QRect kText(24, 80, 312, 34);
constexpr QRect kPlace(24, 112, 312, 24);
constexpr QRect kStop(140, 146, 80, 34);
constexpr QPointF kMoon(176.0, 46.0);
constexpr double kMoonRadius = 25.0;
constexpr QPointF kShadow(185.0, 41.0);  // the disc that makes a crescent of the moon
constexpr double kShadowRadius = 21.0;
constexpr double kFrame = 6.5;        // of the inner frame from the edge
constexpr double kFrameCorner = 5.0;  // its radius
constexpr double kSignSize = 11.0;
constexpr double kPill = 8.0;  // radius of the button's corners

const TextLine::Look kTextLook{20, kCream, Qt::AlignCenter};
const TextLine::Look kPlaceLook{14, kGold, Qt::AlignCenter};

/// The square that means stop in every language.
class StopButton : public FaceButton {
public:
    explicit StopButton(QWidget* parent) : FaceButton(parent) {}

protected:
    void PaintFace(QPainter& painter) override {
        painter.setPen(EdgeOfFace());
        painter.drawRoundedRect(QRectF(rect()).adjusted(1.0, 1.0, -1.0, -1.0), kPill, kPill);
        QRectF sign(0.0, 0.0, kSignSize, kSignSize);
        sign.moveCenter(QRectF(rect()).center());
        painter.setPen(Qt::NoPen);
        painter.setBrush(kGold);
        painter.drawRoundedRect(sign, 1.5, 1.5);
    }
};

QPainterPath Crescent() {
    QPainterPath moon;
    moon.addEllipse(kMoon, kMoonRadius, kMoonRadius);
    QPainterPath shadow;
    shadow.addEllipse(kShadow, kShadowRadius, kShadowRadius);
    return moon.subtracted(shadow);
}

/// A line on each side of the crescent, that fades outward.
void DrawRays(QPainter& painter) {
    for (const double side : {-1.0, 1.0}) {
        const double centre = kFace.width() / 2.0;
        const QPointF from(centre + side * 48.0, kMoon.y());
        const QPointF to(centre + side * 140.0, kMoon.y());
        QLinearGradient fading(from, to);
        fading.setColorAt(0.0, EdgeOfFace());
        fading.setColorAt(1.0, Qt::transparent);
        painter.setPen(QPen(QBrush(fading), 1.0));
        painter.drawLine(from, to);
    }
}

}  // namespace

AzanView::AzanView() : AzanView(!PlacesAreKnown()) {}

AzanView::AzanView(bool isWhole)
    : text_(new TextLine(this, kTextLook)),
      place_(new TextLine(this, kPlaceLook)),
      stop_(new StopButton(this)),
      below_(isWhole ? 0 : kBelowScreen),
      down_((kBelowScreen - below_) / 2) {
    setFixedSize(kFace);
    setContextMenuPolicy(Qt::PreventContextMenu);
    text_->setGeometry(kText.translated(0, down_));
    place_->setGeometry(kPlace.translated(0, down_));
    NameStop(QStringLiteral("Stop"));
    stop_->setObjectName(QStringLiteral("IDC_FS_Stop"));
    stop_->setGeometry(kStop.translated(0, down_));
    connect(stop_, &QAbstractButton::clicked, this, [this] {
        if (onCommand) {
            onCommand("IDC_FS_Stop");
        }
    });
}

void AzanView::SetVariable(const std::string& name, const QString& value) {
    if (name == "_root.character_textField") {
        text_->ShowText(value);
    } else if (name == "_root.place_textField") {
        place_->ShowText(value);
    }
}

void AzanView::NameStop(const QString& name) {
    stop_->setAccessibleName(name);
    stop_->setToolTip(name);
}

void AzanView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const SkyColours colours = NightSky();
    QLinearGradient sky(0.0, 0.0, 0.0, kFace.height());
    sky.setColorAt(0.0, colours.top);
    sky.setColorAt(1.0, colours.bottom);
    painter.fillRect(rect(), sky);
    painter.setPen(EdgeOfFace());
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.drawRoundedRect(QRectF(rect()).adjusted(kFrame, kFrame, -kFrame, -kFrame - below_),
                            kFrameCorner, kFrameCorner);
    painter.translate(0.0, down_);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kGold);
    painter.drawPath(Crescent());
    DrawRays(painter);
}

}  // namespace horavex

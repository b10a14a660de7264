#include "desktop/look/icons.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <algorithm>
#include <optional>

#include "desktop/look/look.h"
#include "desktop/look/paper_look.h"

namespace horavex::look {

namespace {

constexpr const char* kColourOfUse = "currentColor";

QString FileOf(const QString& name) {
    return QStringLiteral(":/art/%1.svg").arg(name);
}

/// What a message is about has a colour besides its shape.
std::optional<Role> RoleOf(const QString& name) {
    if (name == QLatin1String("information")) {
        return Role::kLink;
    }
    if (name == QLatin1String("warning")) {
        return Role::kWarning;
    }
    return name == QLatin1String("critical") ? std::optional(Role::kTrouble) : std::nullopt;
}

QColor InkOf(const QString& name, QIcon::Mode mode) {
    const QPalette palette = PaletteOfSigns();
    if (mode == QIcon::Disabled) {
        return palette.color(QPalette::Disabled, QPalette::ButtonText);
    }
    if (mode == QIcon::Selected) {
        return palette.color(QPalette::HighlightedText);
    }
    const auto role = RoleOf(name);
    return role ? ColourOf(ThemeOf(palette), *role) : palette.color(QPalette::ButtonText);
}

QRect SquareIn(const QRect& rect) {
    const int side = std::min(rect.width(), rect.height());
    QRect square(0, 0, side, side);
    square.moveCenter(rect.center());
    return square;
}

class IconEngine : public QIconEngine {
public:
    explicit IconEngine(QString name, QByteArray drawing)
        : name_(std::move(name)), drawing_(std::move(drawing)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        QByteArray drawing = drawing_;
        drawing.replace(kColourOfUse, InkOf(name_, mode).name().toLatin1());
        QSvgRenderer(drawing).render(painter, SquareIn(rect));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    // Those that are sent over a bus; what lies on the display asks for its own.
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        QList<QSize> sizes;
        for (const int size : {16, 22, 24, 32, 48, 64}) {
            sizes << QSize(size, size);
        }
        return sizes;
    }

    QIconEngine* clone() const override { return new IconEngine(name_, drawing_); }

private:
    QString name_;
    QByteArray drawing_;
};

}  // namespace

QIcon IconOf(const QString& name) {
    QFile file(FileOf(name));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QIcon(new IconEngine(name, file.readAll()));
}

}  // namespace horavex::look

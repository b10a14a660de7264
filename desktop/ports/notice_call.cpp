#include "desktop/ports/notice_call.h"

#include <QDBusArgument>
#include <QGuiApplication>
#include <QImage>
#include <QVariantMap>

#include "desktop/ports/emblem.h"

namespace horavex {

namespace {

constexpr int kPictureSide = 64;

// Urgencies of the service. Its lowest is of no use: some desktops show no banner for it, and keep
// it in no list.
constexpr uchar kNormal = 1;
constexpr uchar kCritical = 2;

// Milliseconds on view.
constexpr int kAsTheServiceLikes = -1;
constexpr int kForEver = 0;

/// The emblem in the service's own form of a picture.
QVariant Picture() {
    const QImage image = Emblem()
                             .pixmap(QSize(kPictureSide, kPictureSide), 1.0)
                             .toImage()
                             .convertToFormat(QImage::Format_RGBA8888);
    constexpr int kBitsPerSample = 8;
    constexpr int kChannels = 4;
    QDBusArgument picture;
    picture.beginStructure();
    picture << image.width() << image.height() << static_cast<int>(image.bytesPerLine()) << true
            << kBitsPerSample << kChannels
            << QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
    picture.endStructure();
    return QVariant::fromValue(picture);
}

QVariantMap Hints(NoticeKind kind, bool isQuiet) {
    QVariantMap hints = {
        {"urgency", QVariant::fromValue(isQuiet ? kNormal : kCritical)},
        {"category", kind == NoticeKind::kMissed ? "x-horavex.missed" : "x-horavex.prayer"},
        {"desktop-entry", QGuiApplication::desktopFileName()},
        {"image-data", Picture()}};
    hints.insert(isQuiet ? QStringLiteral("suppress-sound") : QStringLiteral("resident"), true);
    return hints;
}

QStringList Actions(const Notice& notice) {
    QStringList actions;
    const auto add = [&](const char* key, const std::string& caption) {
        if (!caption.empty()) {
            actions << QLatin1String(key) << QString::fromStdString(caption);
        }
    };
    add(kClickKey, notice.openCaption);
    add(kOpenKey, notice.openCaption);
    add(kStopKey, notice.stopCaption);
    return actions;
}

}  // namespace

QVariantList NotifyArguments(NoticeKind kind, const Notice& notice, uint replaced,
                             const QStringList& abilities) {
    const QString text = QString::fromStdString(notice.text);
    return {QGuiApplication::applicationName(),
            replaced,
            QGuiApplication::desktopFileName(),  // the icon's name, too
            QString::fromStdString(notice.title),
            abilities.contains("body-markup") ? text.toHtmlEscaped() : text,
            abilities.contains("actions") ? Actions(notice) : QStringList(),
            Hints(kind, notice.quiet),
            notice.quiet ? kAsTheServiceLikes : kForEver};
}

}  // namespace horavex

#include "desktop/ports/notice_call.h"

#include <QDBusArgument>
#include <QGuiApplication>
#include <QImage>
#include <QStringList>
#include <QVariantMap>

#include "desktop/ports/emblem.h"
#include "desktop/user_text.h"

namespace horavex {

namespace {

constexpr int kPictureSide = 64;

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

QVariantMap Hints(const NoticeCall& call) {
    QVariantMap hints = {{"urgency", QVariant::fromValue(static_cast<uchar>(call.urgency))},
                         {"category", QString::fromStdString(call.category)},
                         {"desktop-entry", QGuiApplication::desktopFileName()},
                         {"image-data", Picture()}};
    hints.insert(call.quiet ? QStringLiteral("suppress-sound") : QStringLiteral("resident"), true);
    return hints;
}

QStringList Texts(const std::vector<std::string>& words) {
    QStringList texts;
    for (const std::string& word : words) {
        texts << UserText(word);
    }
    return texts;
}

}  // namespace

QVariantList NotifyArguments(const NoticeCall& call) {
    return {QGuiApplication::applicationName(),
            static_cast<uint>(call.replaced),
            QGuiApplication::desktopFileName(),  // the icon's name, too
            UserText(call.title),
            UserText(call.text),
            Texts(call.actions),
            Hints(call),
            call.timeout};
}

}  // namespace horavex

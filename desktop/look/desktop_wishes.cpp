#include "desktop/look/desktop_wishes.h"

#include <QApplication>
#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QMap>

#include "desktop/look/desktop_colours.h"
#include "desktop/look/look.h"

namespace horavex::look {

namespace {

constexpr const char* kInterface = "org.freedesktop.portal.Settings";
constexpr const char* kAppearance = "org.freedesktop.appearance";
constexpr const char* kGnome = "org.gnome.desktop.interface";

constexpr uint kPrefersDark = 1;
constexpr uint kMore = 1;

/// Values by their keys, by the spaces that these lie in.
using Spaces = QMap<QString, QVariantMap>;

QVariant Unboxed(const QVariant& value) {
    return value.canConvert<QDBusVariant>() ? value.value<QDBusVariant>().variant() : value;
}

}  // namespace

DesktopWishes::DesktopWishes(const QDBusConnection& session)
    : desktopHasColours_(DesktopHasColours()),
      settings_(session, QStringLiteral("org.freedesktop.portal.Desktop"),
                QStringLiteral("/org/freedesktop/portal/desktop"), QLatin1String(kInterface),
                BusObject::Start::kWhenNeeded) {
    Apply();
    changed_ = settings_.Hear("SettingChanged", [this](const auto& signal) { Follow(signal); });
    const QStringList spaces = {QLatin1String(kAppearance), QLatin1String(kGnome)};
    settings_.Ask(context_, "ReadAll", {spaces}, [this](const auto& answer) { TakeAll(answer); });
}

void DesktopWishes::TakeAll(const QDBusMessage& answer) {
    if (answer.type() == QDBusMessage::ErrorMessage) {
        return;
    }
    const auto spaces = qdbus_cast<Spaces>(answer.arguments().value(0));
    for (auto space = spaces.begin(); space != spaces.end(); ++space) {
        for (auto entry = space->begin(); entry != space->end(); ++entry) {
            Take(space.key(), entry.key(), Unboxed(entry.value()));
        }
    }
    Apply();
}

void DesktopWishes::Follow(const QDBusMessage& signal) {
    const QVariantList what = signal.arguments();
    Take(what.value(0).toString(), what.value(1).toString(), Unboxed(what.value(2)));
    Apply();
}

void DesktopWishes::Take(const QString& space, const QString& key, const QVariant& value) {
    if (space == QLatin1String(kGnome) && key == QLatin1String("enable-animations")) {
        allowsEffects_ = value.toBool();
    }
    if (space != QLatin1String(kAppearance)) {
        return;
    }
    if (key == QLatin1String("color-scheme")) {
        wantsDark_ = value.toUInt() == kPrefersDark;
    } else if (key == QLatin1String("contrast")) {
        wantsContrast_ = value.toUInt() == kMore;
    } else if (key == QLatin1String("reduced-motion")) {
        wantsStillness_ = value.toUInt() == kMore;
    }
}

void DesktopWishes::Apply() const {
    AllowMotion(allowsEffects_ && !wantsStillness_);
    if (desktopHasColours_) {
        return;
    }
    const Theme plain = wantsDark_ ? Theme::kDark : Theme::kLight;
    const Theme stark = wantsDark_ ? Theme::kContrast : Theme::kLightContrast;
    const Theme theme = wantsContrast_ ? stark : plain;
    if (QGuiApplication::palette() != PaletteOf(theme)) {
        Use(theme);
    }
}

}  // namespace horavex::look

#include "desktop/look/look.h"

#include <QApplication>
#include <QVariant>

#include "desktop/look/desktop_colours.h"
#include "desktop/look/look_style.h"

namespace horavex::look {

namespace {

constexpr const char* kStill = "standsStill";

}  // namespace

// Some styles paint in colours of their own, over which the texts of a theme would be lost. Where a
// desktop has colours, its style goes with them.
void PutOn() {
    QApplication::setStyle(new LookStyle(QString::fromLatin1(kUsualStyle)));
    if (DesktopHasColours()) {
        QApplication::setStyle(new LookStyle);
    }
}

void Use(Theme theme) {
    QApplication::setPalette(PaletteOf(theme));
}

Theme ThemeNamed(const QString& name) {
    if (name == QLatin1String("contrast")) {
        return Theme::kContrast;
    }
    if (name == QLatin1String("light-contrast")) {
        return Theme::kLightContrast;
    }
    return name == QLatin1String("dark") ? Theme::kDark : Theme::kLight;
}

Theme CurrentTheme() {
    return ThemeOf(QGuiApplication::palette());
}

bool WantsContrast() {
    const Theme theme = CurrentTheme();
    return theme == Theme::kContrast || theme == Theme::kLightContrast;
}

void AllowMotion(bool allowed) {
    qApp->setProperty(kStill, !allowed);
}

bool MotionIsAllowed() {
    return !qApp->property(kStill).toBool();
}

}  // namespace horavex::look

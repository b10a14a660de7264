#include "desktop/look/roles.h"

#include <array>

#include "desktop/look/contrast.h"

namespace horavex::look {

namespace {

/// A colour in each of the themes.
struct Shades {
    Role role;
    std::array<QRgb, 4> values;
};

// By day navy marks on a pale ground, by night gold ones on navy, as on the face.
constexpr Shades kShades[] = {
    {Role::kGround, {0xffeef1f5, 0xff17222f, 0xff000000, 0xffffffff}},
    {Role::kField, {0xffffffff, 0xff0f1924, 0xff000000, 0xffffffff}},
    {Role::kSetOff, {0xffe3ebf4, 0xff223248, 0xff262626, 0xffe6e6e6}},
    {Role::kRaised, {0xfff7f9fb, 0xff26374b, 0xff262626, 0xfff0f0f0}},
    {Role::kText, {0xff1a1f26, 0xffecebe4, 0xffffffff, 0xff000000}},
    {Role::kMuted, {0xff56616e, 0xffaab6c3, 0xffffffff, 0xff000000}},
    {Role::kOff, {0xff747e8a, 0xff8592a1, 0xffb0b0b0, 0xff595959}},
    {Role::kMarked, {0xff1e4876, 0xffe6c678, 0xffffd75e, 0xff00296b}},
    {Role::kMarkedText, {0xffffffff, 0xff17222f, 0xff000000, 0xffffffff}},
    {Role::kLink, {0xff1e4876, 0xff8fbbe8, 0xffffe27a, 0xff00296b}},
    {Role::kWarning, {0xff8f5a00, 0xffe6c678, 0xffffd75e, 0xff6b4000}},
    {Role::kTrouble, {0xffb3261e, 0xffff8c78, 0xffff9d8f, 0xff9c0000}},
    {Role::kEdge, {0xff7b8694, 0xff778a9f, 0xffffffff, 0xff000000}},
};
static_assert(std::size(kShades) == static_cast<std::size_t>(Role::kCount));

constexpr double kBlackOnWhite = 20.5;  // of 21; the texts of plain themes keep below

void SetOn(QPalette& palette, const QColor& colour, std::initializer_list<QPalette::ColorRole> on) {
    for (const auto role : on) {
        palette.setColor(role, colour);
    }
}

void SetOff(QPalette& palette, const QColor& colour) {
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, colour);
    }
}

}  // namespace

QColor ColourOf(Theme theme, Role role) {
    const Shades& shades = kShades[static_cast<std::size_t>(role)];
    Q_ASSERT(shades.role == role);
    return QColor(shades.values.at(static_cast<std::size_t>(theme)));
}

// The toolkit shades the edges of its widgets by the two colours that the palette begins with.
QPalette PaletteOf(Theme theme) {
    const auto of = [theme](Role role) { return ColourOf(theme, role); };
    QPalette palette(of(Role::kRaised), of(Role::kGround));
    SetOn(palette, of(Role::kField), {QPalette::Base});
    SetOn(palette, of(Role::kSetOff), {QPalette::AlternateBase});
    SetOn(palette, of(Role::kRaised), {QPalette::ToolTipBase});
    SetOn(palette, of(Role::kText),
          {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
           QPalette::BrightText});
    SetOn(palette, of(Role::kMuted), {QPalette::PlaceholderText});
    SetOn(palette, of(Role::kMarked), {QPalette::Highlight});
    SetOn(palette, of(Role::kMarkedText), {QPalette::HighlightedText});
    SetOn(palette, of(Role::kLink), {QPalette::Link, QPalette::LinkVisited});
    SetOff(palette, of(Role::kOff));
    if (theme == Theme::kDark) {  // whose raised buttons are too light for the texts of what is off
        palette.setColor(QPalette::Disabled, QPalette::Button, of(Role::kGround));
    }
    return palette;
}

Theme ThemeOf(const QPalette& palette) {
    const bool isDark = IsDark(palette);
    if (Contrast(palette.color(QPalette::Active, QPalette::WindowText),
                 palette.color(QPalette::Active, QPalette::Window)) > kBlackOnWhite) {
        return isDark ? Theme::kContrast : Theme::kLightContrast;
    }
    return isDark ? Theme::kDark : Theme::kLight;
}

bool HasOurColours(const QPalette& palette) {
    return palette.color(QPalette::Window) == ColourOf(ThemeOf(palette), Role::kGround);
}

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Active, QPalette::Window).lightness() <
           palette.color(QPalette::Active, QPalette::WindowText).lightness();
}

}  // namespace horavex::look

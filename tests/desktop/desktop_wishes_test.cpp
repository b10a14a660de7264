#include "desktop/look/desktop_wishes.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QStyle>
#include <optional>

#include "desktop/look/look.h"
#include "desktop/private_bus.h"

namespace horavex::look {
namespace {

using Spaces = QMap<QString, QVariantMap>;

constexpr const char* kAppearance = "org.freedesktop.appearance";
constexpr const char* kGnome = "org.gnome.desktop.interface";

/// The portal of a desktop, on a bus of the test.
class Portal : public QDBusVirtualObject {
public:
    explicit Portal(QDBusConnection bus) : bus_(std::move(bus)) {
        qDBusRegisterMetaType<Spaces>();
        bus_.registerVirtualObject(kPath, this);
        bus_.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }

    ~Portal() override { bus_.unregisterObject(kPath); }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        asked = message.arguments().value(0).toStringList();
        bus.send(message.createReply(QVariant::fromValue(settings)));
        return true;
    }

    void Change(const char* space, const char* key, const QVariant& value) {
        QDBusMessage signal = QDBusMessage::createSignal(
            kPath, QStringLiteral("org.freedesktop.portal.Settings"), "SettingChanged");
        bus_.send(signal << space << key << QVariant::fromValue(QDBusVariant(value)));
    }

    Spaces settings;
    QStringList asked;

private:
    static constexpr const char* kPath = "/org/freedesktop/portal/desktop";
    QDBusConnection bus_;
};

class DesktopWishesTest : public PrivateBus {
protected:
    DesktopWishesTest() { Undress(); }
    ~DesktopWishesTest() override {
        wishes.reset();
        Undress();
        AllowMotion(true);
    }

    void Start() { wishes.emplace(Connect("client")); }

    static bool Comes(Theme theme) {
        return Until([theme] { return CurrentTheme() == theme; });
    }

    Portal portal{Connect("portal")};
    std::optional<DesktopWishes> wishes;

private:
    static void Undress() { QApplication::setPalette(QPalette()); }
};

TEST_F(DesktopWishesTest, WindowsAreLightUntilTheDesktopTells) {
    Start();
    EXPECT_EQ(QGuiApplication::palette(), PaletteOf(Theme::kLight));
    Settle();
    EXPECT_EQ(QGuiApplication::palette(), PaletteOf(Theme::kLight));
    EXPECT_EQ(portal.asked, (QStringList{kAppearance, kGnome}));
}

TEST_F(DesktopWishesTest, WindowsAreAsTheDesktopIsAtTheStart) {
    portal.settings = {{kAppearance, {{"color-scheme", 1U}}}};
    Start();
    EXPECT_TRUE(Comes(Theme::kDark));
}

TEST_F(DesktopWishesTest, ChangesAreFollowed) {
    Start();
    Settle();
    portal.Change(kAppearance, "color-scheme", 1U);
    EXPECT_TRUE(Comes(Theme::kDark));
    portal.Change(kAppearance, "contrast", 1U);
    EXPECT_TRUE(Comes(Theme::kContrast));
    portal.Change(kAppearance, "color-scheme", 2U);
    EXPECT_TRUE(Comes(Theme::kLightContrast));
    portal.Change(kAppearance, "color-scheme", 2U);
    portal.Change(kAppearance, "contrast", 0U);
    EXPECT_TRUE(Comes(Theme::kLight));
}

TEST_F(DesktopWishesTest, KeysOfOtherSpacesAreNotTaken) {
    Start();
    portal.Change("org.example", "color-scheme", 1U);
    portal.Change(kGnome, "contrast", 1U);
    Settle();
    EXPECT_EQ(CurrentTheme(), Theme::kLight);
}

TEST_F(DesktopWishesTest, DesktopWhoseColoursTheToolkitTakesIsLeftAlone) {
    const QPalette own(QColor(200, 160, 220));
    QApplication::setPalette(own);
    portal.settings = {{kAppearance, {{"color-scheme", 1U}, {"contrast", 1U}}}};
    Start();
    Settle();
    EXPECT_EQ(QGuiApplication::palette().color(QPalette::Window), QColor(200, 160, 220));
}

TEST_F(DesktopWishesTest, NothingMovesWhereTheDesktopWantsItStill) {
    const auto duration = [] {
        return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration);
    };
    portal.settings = {{kGnome, {{"enable-animations", false}}}};
    Start();
    EXPECT_TRUE(Until([] { return !MotionIsAllowed(); }));
    EXPECT_EQ(duration(), 0);
    portal.Change(kGnome, "enable-animations", true);
    EXPECT_TRUE(Until(MotionIsAllowed));
    EXPECT_GT(duration(), 0);
    portal.Change(kAppearance, "reduced-motion", 1U);
    EXPECT_TRUE(Until([] { return !MotionIsAllowed(); }));
}

TEST(DesktopWishes, WithoutABusWindowsAreLight) {
    const DesktopWishes wishes(QDBusConnection(QStringLiteral("none")));
    QCoreApplication::processEvents();
    EXPECT_EQ(CurrentTheme(), Theme::kLight);
    EXPECT_TRUE(MotionIsAllowed());
    QApplication::setPalette(QPalette());
}

}  // namespace
}  // namespace horavex::look

#include "desktop/application.h"

#include <QPushButton>
#include <QTimer>

#include "base/fault.h"
#include "desktop/form_window_fixture.h"
#include "platform/fault_box.h"

namespace horavex {
namespace {

class EventBoundaryTest : public FormWindowTest {};

TEST_F(EventBoundaryTest, FaultOfAHandlerIsToldAndTheProgramGoesOn) {
    Show();
    form.button.onClick = [] { throw OverflowFault("too large"); };
    Click(Find<QPushButton>("button"));
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text, "too large");
    EXPECT_EQ(platform.dialogs.messages[0].title, "");
    EXPECT_EQ(platform.dialogs.messages[0].icon, MessageIcon::kNone);
    bool clicked = false;
    form.button.onClick = [&] { clicked = true; };
    Click(Find<QPushButton>("button"));
    EXPECT_TRUE(clicked);
}

TEST_F(EventBoundaryTest, TimerThatFaultsTicksOn) {
    int ticks = 0;
    form.timer.onTimer = [&] {
        ++ticks;
        throw BoundsFault("no such row");
    };
    form.timer.SetInterval(5);
    form.timer.SetEnabled(true);
    form.Load();
    while (ticks < 2) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    EXPECT_EQ(platform.dialogs.messages.size(), static_cast<std::size_t>(ticks));
}

/// A box that faults again while it is open.
class FaultingDialogs : public RecordingDialogs {
public:
    void ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) override {
        RecordingDialogs::ShowMessage(text, title, icon);
        ShowFault(OverflowFault("again"));
    }
};

TEST_F(EventBoundaryTest, NoSecondBoxComesWhileOneIsOpen) {
    FaultingDialogs dialogs;
    const Platform& ports = Ports();
    const Platform faulting{
        ports.clock,     ports.eventLoop,   ports.files,     ports.programFolder,
        ports.formats,   dialogs,           ports.registry,  ports.instanceGuard,
        ports.face,      ports.windows,     ports.tray,      ports.shell,
        ports.network,   ports.athanFace,   ports.audioFile, ports.audioPlayer,
        ports.zoneRules, ports.whereabouts, ports.notices,   ports.mediaPlayers,
        ports.session,   ports.almanac,     ports.broadcast};
    InstallPlatform(&faulting);
    ShowFault(OverflowFault("first"));
    ShowFault(OverflowFault("second"));
    ASSERT_EQ(dialogs.messages.size(), 2U);
    EXPECT_EQ(dialogs.messages[1].text, "second");
    InstallPlatform(&ports);
}

TEST(Application, QuitAsksForTheEndAndClosesNoWindow) {
    auto& application = *static_cast<Application*>(QCoreApplication::instance());
    int ends = 0;
    application.onEnd = [&] { ++ends; };
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(&application, &quit);
    EXPECT_EQ(ends, 1);
    application.onEnd = nullptr;
}

}  // namespace
}  // namespace horavex

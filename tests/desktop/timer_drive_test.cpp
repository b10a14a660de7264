#include "desktop/form_window/timer_drive.h"

#include "desktop/form_window_fixture.h"
#include "desktop/ports/qt_dialogs.h"

namespace horavex {
namespace {

class TimerDriveTest : public FormWindowTest {
protected:
    TimerDriveTest() {
        form.timer.SetInterval(5);
        form.timer.onTimer = [this] { ++ticks; };
    }

    void WaitForTicks(int count) {
        while (ticks < count) {
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    int ticks = 0;
};

TEST_F(TimerDriveTest, TimerTicksFromItsEnablingUntilItIsStopped) {
    form.Load();
    form.timer.SetEnabled(true);
    WaitForTicks(2);
    form.timer.onTimer = [this] {
        ++ticks;
        form.timer.SetEnabled(false);
    };
    WaitForTicks(3);
    EXPECT_FALSE(form.timer.Running());
}

TEST_F(TimerDriveTest, TimerThatRunsByItsDefinitionTicksFromTheLoad) {
    form.timer.SetEnabled(true);
    form.Load();
    WaitForTicks(1);
    EXPECT_EQ(ticks, 1);
}

TEST_F(TimerDriveTest, TimerGoesOnUnderALoopThatItsHandlerRuns) {
    form.timer.onTimer = [this] {
        if (++ticks == 1) {
            WaitForTicks(3);
        }
    };
    form.Load();
    form.timer.SetEnabled(true);
    WaitForTicks(1);
    EXPECT_GE(ticks, 3);
}

TEST_F(TimerDriveTest, TimerGoesOnUnderABoxThatItsHandlerOpensAndOneThatOpensOverIt) {
    form.timer.onTimer = [this] {
        ++ticks;
        if (ticks <= 2) {
            QtDialogs([] {}).ShowMessage("text", "", MessageIcon::kNone);
        } else if (QWidget* box = QApplication::activeModalWidget(); box != nullptr) {
            box->close();
        }
    };
    form.Load();
    form.timer.SetEnabled(true);
    WaitForTicks(1);
    EXPECT_GE(ticks, 4) << "two boxes, each closed by a later tick";
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(TimerDriveTest, UnloadedFormTicksNoMore) {
    form.timer.onTimer = [this] {
        ++ticks;
        form.Unload();
    };
    form.timer.SetEnabled(true);
    form.Load();
    WaitForTicks(1);
    EXPECT_EQ(windows.Find(&form), nullptr);
}

}  // namespace
}  // namespace horavex

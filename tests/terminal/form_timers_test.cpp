#include "terminal/ports/form_timers.h"

#include <gtest/gtest.h>

#include "support/test_platform.h"
#include "terminal/ports/faceless_forms.h"

namespace horavex {
namespace {

class TimedForm : public Form {
public:
    TimedForm() : Form("frmTimed") {}

    Timer timer{*this, "timer", {.enabled = false, .intervalMs = 5}};
    Timer other{*this, "other", {.enabled = false, .intervalMs = 1000}};
};

class FormTimersTest : public testing::Test {
protected:
    FormTimersTest() {
        form.timer.onTimer = [this] { ++ticks; };
    }

    void WaitForTicks(int count) {
        loop.RunWhile([&] { return ticks < count; });
    }

    TestPlatform platform;
    PollEventLoop loop;
    FacelessForms forms{loop};
    TimedForm form;
    int ticks = 0;
};

TEST_F(FormTimersTest, TimerTicksFromItsEnablingUntilItIsStopped) {
    form.Load();
    form.timer.SetEnabled(true);
    WaitForTicks(3);
    form.timer.SetEnabled(false);
    loop.Rest(20);
    EXPECT_EQ(ticks, 3);
}

TEST_F(FormTimersTest, TimerThatRunsByItsDefinitionTicksFromTheLoad) {
    form.timer.SetEnabled(true);
    form.Load();
    WaitForTicks(1);
}

TEST_F(FormTimersTest, TimerGoesOnUnderALoopThatItsHandlerRuns) {
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

TEST_F(FormTimersTest, TimerOfOneSecondTicksWhenTheSecondTurns) {
    using namespace std::chrono;
    milliseconds within{};
    form.other.onTimer = [&] {
        within = duration_cast<milliseconds>(system_clock::now().time_since_epoch()) % 1000;
        ++ticks;
    };
    form.Load();
    form.other.SetEnabled(true);
    WaitForTicks(1);
    EXPECT_LT(within, milliseconds(500));
}

TEST_F(FormTimersTest, FormThatItsTimerUnloadsTicksNoMore) {
    form.timer.onTimer = [this] {
        ++ticks;
        form.Unload();
    };
    form.timer.SetEnabled(true);
    form.Load();
    WaitForTicks(1);
    loop.Rest(20);
    EXPECT_EQ(ticks, 1);
}

TEST_F(FormTimersTest, FormThatWaitsForTheUserIsClosedAsTheUserWould) {
    bool wasUser = false;
    form.onCloseRequest = [&](const CloseRequest& request) {
        wasUser = request.reason == CloseReason::kUser;
    };
    form.ShowModal();
    EXPECT_TRUE(wasUser);
    EXPECT_FALSE(form.Visible());
}

}  // namespace
}  // namespace horavex

#include "forms/timer.h"

#include "sample_form.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TimerTest : public FormTest {
protected:
    TimerTest() {
        form.tmrUpdate.onTimer = Note("tick");
        form.Load();
    }
};

TEST_F(TimerTest, TicksWhileEnabled) {
    form.tmrUpdate.Tick();
    EXPECT_THAT(events, IsEmpty());

    form.tmrUpdate.SetEnabled(true);
    form.tmrUpdate.Tick();
    EXPECT_THAT(events, ElementsAre("tick"));
}

TEST_F(TimerTest, TicksOnAHiddenAndDisabledForm) {
    form.tmrUpdate.SetEnabled(true);
    ASSERT_FALSE(form.Visible());
    form.SetEnabled(false);

    form.tmrUpdate.Tick();

    EXPECT_THAT(events, ElementsAre("tick"));
}

TEST_F(TimerTest, WithoutAnIntervalNeverTicks) {
    form.tmrUpdate.SetEnabled(true);
    form.tmrUpdate.SetInterval(0);

    EXPECT_FALSE(form.tmrUpdate.Running());
    form.tmrUpdate.Tick();
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(TimerTest, StopsWithItsForm) {
    form.tmrUpdate.SetEnabled(true);
    form.Unload();
    form.tmrUpdate.SetEnabled(true);

    form.tmrUpdate.Tick();

    EXPECT_FALSE(form.tmrUpdate.Running());
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(TimerTest, MayDisableItselfInItsTick) {
    form.tmrUpdate.SetEnabled(true);
    form.tmrUpdate.onTimer = [this] {
        events.push_back("once");
        form.tmrUpdate.SetEnabled(false);
    };

    form.tmrUpdate.Tick();
    form.tmrUpdate.Tick();

    EXPECT_THAT(events, ElementsAre("once"));
}

}  // namespace
}  // namespace horavex

#include "sample_form.h"

namespace horavex {
namespace {

using testing::ElementsAre;

/// cmdOK unloads the form in its click.
class DeferredUnloadTest : public FormTest {
protected:
    DeferredUnloadTest() {
        form.onCloseRequest = [this](CloseRequest&) { events.push_back("close request"); };
        form.onUnload = Note("unload");
        form.cmdOK.onClick = [this] {
            form.Unload();
            events.push_back(form.IsLoaded() ? "still loaded" : "gone");
        };
        form.Show();
    }
};

TEST_F(DeferredUnloadTest, WaitsForTheRunningHandler) {
    form.cmdOK.UserClick();

    EXPECT_THAT(events, ElementsAre("close request", "still loaded", "unload"));
    EXPECT_FALSE(form.IsLoaded());
}

TEST_F(DeferredUnloadTest, WaitsForTheOutermostHandler) {
    form.chkAlarm.onClick = [this] {
        form.cmdOK.UserClick();
        events.push_back("outer ends");
    };

    form.chkAlarm.UserClick();

    EXPECT_THAT(events, ElementsAre("close request", "still loaded", "outer ends", "unload"));
}

TEST_F(DeferredUnloadTest, HandlerStillReadsAndWritesItsControls) {
    form.cmdOK.onClick = [this] {
        form.txtZone.SetText("5");
        form.Unload();
        events.push_back(form.txtZone.Text());
    };

    form.cmdOK.UserClick();

    EXPECT_THAT(events, ElementsAre("close request", "5", "unload"));
}

TEST_F(DeferredUnloadTest, HandlerOfAnotherFormDoesNotHoldItUp) {
    SampleForm other;
    other.cmdOK.onClick = [this] {
        form.Unload();
        events.push_back(form.IsLoaded() ? "still loaded" : "gone");
    };

    other.cmdOK.UserClick();

    EXPECT_THAT(events, ElementsAre("close request", "unload", "gone"));
}

TEST_F(DeferredUnloadTest, SecondUnloadInTheHandlerAsksNoMore) {
    form.cmdOK.onClick = [this] {
        form.Unload();
        form.Unload();
    };

    form.cmdOK.UserClick();

    EXPECT_THAT(events, ElementsAre("close request", "unload"));
}

TEST_F(DeferredUnloadTest, LoadInTheSameHandlerCompletesItFirst) {
    form.onLoad = Note("load");
    form.cmdOK.onClick = [this] {
        form.lblCity.SetCaption("Cairo");
        form.Unload();
        form.Load();
        events.push_back(form.lblCity.Caption());
    };

    form.cmdOK.UserClick();

    EXPECT_TRUE(form.IsLoaded());
    EXPECT_THAT(events, ElementsAre("close request", "unload", "load", "Nowhere"));
}

TEST_F(DeferredUnloadTest, HappensThoughTheHandlerFails) {
    form.cmdOK.onClick = [this] {
        form.Unload();
        throw BoundsFault("no such item");
    };

    EXPECT_THROW(form.cmdOK.UserClick(), BoundsFault);
    EXPECT_FALSE(form.IsLoaded());
    EXPECT_THAT(events, ElementsAre("close request", "unload"));
}

TEST_F(DeferredUnloadTest, UnloadInTheLoadHandlerWaitsForItsEnd) {
    form.Unload();
    events.clear();
    form.onLoad = [this] {
        form.Unload();
        events.push_back("load ends");
    };

    form.Load();

    EXPECT_THAT(events, ElementsAre("close request", "load ends", "unload"));
    EXPECT_FALSE(form.IsLoaded());
}

}  // namespace
}  // namespace horavex

#include "forms/form.h"

#include "sample_form.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FormLifeTest : public FormTest {
protected:
    FormLifeTest() {
        form.onLoad = Note("load");
        form.onActivate = Note("activate");
        form.onUnload = Note("unload");
        form.onResize = Note("resize");
        form.onCloseRequest = [this](CloseRequest& request) {
            events.push_back("close " + std::to_string(static_cast<int>(request.reason)));
            request.cancel = refuses;
        };
    }

    bool refuses = false;
};

TEST_F(FormLifeTest, ShowLoadsThenActivates) {
    form.Show();

    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(ActiveForm(), &form);
    EXPECT_THAT(events, ElementsAre("load", "activate"));
}

TEST_F(FormLifeTest, LoadKeepsTheFormHiddenAndHappensOnce) {
    form.Load();
    form.Load();

    EXPECT_FALSE(form.Visible());
    EXPECT_THAT(events, ElementsAre("load"));
}

TEST_F(FormLifeTest, TouchingAControlNeverLoads) {
    form.lblCity.SetCaption("Cairo");
    form.hsDepr.SetValue(19);
    form.SetCaption("Touched");

    EXPECT_FALSE(form.IsLoaded());
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(FormLifeTest, HiddenFormStaysLoadedAndShowsWithoutALoad) {
    form.Show();
    form.Hide();
    EXPECT_TRUE(form.IsLoaded());
    EXPECT_EQ(ActiveForm(), nullptr);

    form.Show();
    EXPECT_THAT(events, ElementsAre("load", "activate", "activate"));
}

TEST_F(FormLifeTest, VisibilityIsAPropertyToo) {
    form.SetVisible(true);
    EXPECT_TRUE(form.IsLoaded());
    form.SetVisible(false);

    EXPECT_FALSE(form.Visible());
}

TEST_F(FormLifeTest, ActivatesAgainOnlyAfterAnotherFormWasActive) {
    SampleForm other;
    form.Show();
    form.UserActivate();
    other.Show(&form);
    EXPECT_EQ(other.Owner(), &form);
    EXPECT_THAT(events, ElementsAre("load", "activate"));

    form.UserActivate();
    EXPECT_THAT(events, ElementsAre("load", "activate", "activate"));
}

TEST_F(FormLifeTest, UnloadAsksThenUnloads) {
    form.Show();
    events.clear();

    form.Unload();

    EXPECT_FALSE(form.IsLoaded());
    EXPECT_FALSE(form.Visible());
    EXPECT_EQ(ActiveForm(), nullptr);
    EXPECT_THAT(events, ElementsAre("close 1", "unload"));
}

TEST_F(FormLifeTest, CloseRequestCarriesItsReason) {
    refuses = true;
    form.Show();
    events.clear();

    form.UserClose();
    form.Unload(CloseReason::kSessionEnd);
    form.Unload(CloseReason::kTaskManager);

    EXPECT_THAT(events, ElementsAre("close 0", "close 2", "close 3"));
}

TEST_F(FormLifeTest, CancelledCloseLeavesTheFormAsItIs) {
    refuses = true;
    form.Show();
    form.lblCity.SetCaption("Cairo");

    form.UserClose();

    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(form.lblCity.Caption(), "Cairo");
}

TEST_F(FormLifeTest, CloseHandlerMayHideTheFormInstead) {
    form.onCloseRequest = [this](CloseRequest& request) {
        request.cancel = true;
        form.Hide();
    };
    form.Show();

    form.UserClose();

    EXPECT_FALSE(form.Visible());
    EXPECT_TRUE(form.IsLoaded());
}

TEST_F(FormLifeTest, UnloadInItsOwnUnloadHandlerDoesNothing) {
    form.onUnload = [this] {
        events.push_back("unload");
        form.Unload();
    };
    form.Load();
    events.clear();

    form.Unload();

    EXPECT_THAT(events, ElementsAre("close 1", "unload"));
}

TEST_F(FormLifeTest, UnloadOfAnUnloadedFormDoesNothing) {
    form.Unload();

    EXPECT_THAT(events, IsEmpty());
}

TEST_F(FormLifeTest, FormGoesEvenIfItsUnloadHandlerFails) {
    form.onUnload = [] { throw TypeMismatchFault("no number"); };
    form.Show();

    EXPECT_THROW(form.Unload(), TypeMismatchFault);
    EXPECT_FALSE(form.IsLoaded());
}

TEST_F(FormLifeTest, FailedCloseHandlerLeavesTheFormOpenToAnotherTry) {
    form.onCloseRequest = [](CloseRequest&) { throw TypeMismatchFault("no number"); };
    form.Show();
    EXPECT_THROW(form.UserClose(), TypeMismatchFault);
    EXPECT_TRUE(form.Visible());

    form.onCloseRequest = nullptr;
    form.UserClose();
    EXPECT_FALSE(form.IsLoaded());
}

TEST_F(FormLifeTest, SizeAndWindowStateFireResize) {
    form.SetWidth(7000);
    form.SetWidth(7000);
    form.SetLeft(10);
    form.SetWindowState(WindowState::kMinimized);
    form.SetWindowState(WindowState::kMinimized);

    EXPECT_EQ(form.State(), WindowState::kMinimized);
    EXPECT_THAT(events, ElementsAre("resize", "resize"));
}

TEST_F(FormLifeTest, ResetOfTheProgramStateForgetsTheActiveForm) {
    form.Show();

    ResetProgramState();

    EXPECT_EQ(ActiveForm(), nullptr);
}

TEST_F(FormLifeTest, DestroyedFormIsNotActive) {
    {
        SampleForm other;
        other.Show();
    }

    EXPECT_EQ(ActiveForm(), nullptr);
}

TEST_F(FormLifeTest, HelpKeyDoesWhatIsInstalledForAnyForm) {
    form.UserHelp();
    std::vector<Form*> asked;
    InstallHelpKey([&](Form& pressed) { asked.push_back(&pressed); });

    form.UserHelp();

    EXPECT_THAT(asked, ElementsAre(&form));
}

TEST_F(FormLifeTest, FormThatItsHelpKeyUnloadsGoesWhenTheKeyIsDone) {
    form.Load();
    InstallHelpKey([](Form& pressed) {
        pressed.Unload();
        EXPECT_TRUE(pressed.IsLoaded());
    });

    form.UserHelp();

    EXPECT_FALSE(form.IsLoaded());
}

TEST_F(FormLifeTest, FreshProcessHasNoHelpKey) {
    int asked = 0;
    InstallHelpKey([&](Form&) { ++asked; });
    ResetProgramState();

    form.UserHelp();

    EXPECT_EQ(asked, 0);
}

}  // namespace
}  // namespace horavex

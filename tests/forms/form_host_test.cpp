#include "forms/form_host.h"

#include "sample_form.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A front end that writes down what it is told, and plays a user in a modal window.
class RecordingHost : public FormHost, public FormObserver {
public:
    void Loaded(Form& form) override {
        log.push_back("loaded");
        form.SetObserver(this);
    }
    void Unloaded(Form& form) override {
        log.push_back("unloaded");
        form.SetObserver(nullptr);
    }
    void BroughtUp(Form&) override { log.push_back("brought up"); }
    void RunModal(Form& form) override {
        log.push_back(form.IsModal() ? "modal begins" : "not modal");
        user();
        log.push_back(form.Visible() ? "still visible" : "modal ends");
    }
    void ControlChanged(Control& control) override { log.push_back(control.Name()); }
    void FormChanged() override { log.push_back("form"); }

    std::vector<std::string> log;
    Handler user;
};

class FormHostTest : public FormTest {
protected:
    FormHostTest() { InstallFormHost(&host); }

    RecordingHost host;
};

TEST_F(FormHostTest, HearsOfALoadBeforeTheHandler) {
    form.onLoad = [this] { host.log.push_back("handler"); };

    form.Load();

    EXPECT_THAT(host.log, ElementsAre("loaded", "handler"));
}

TEST_F(FormHostTest, HearsOfShowHideAndUnload) {
    form.Show();
    form.Hide();
    form.Unload();

    EXPECT_THAT(host.log, ElementsAre("loaded", "form", "brought up", "form", "unloaded"));
}

TEST_F(FormHostTest, ShownFormIsBroughtUpOnceMore) {
    form.Show();
    host.log.clear();

    form.Show();

    EXPECT_THAT(host.log, ElementsAre("brought up"));
}

TEST_F(FormHostTest, ModalShowReturnsWhenTheUserClosed) {
    SampleForm owner;
    host.user = [this] { form.UserClose(); };

    form.ShowModal(&owner);

    EXPECT_THAT(host.log, ElementsAre("loaded", "form", "brought up", "modal begins", "form",
                                      "unloaded", "modal ends"));
    EXPECT_FALSE(form.IsModal());
}

TEST_F(FormHostTest, ModalFormThatIsShownOnceMoreComesToTheFrontAndRunsOnce) {
    SampleForm owner;
    host.user = [&] {
        form.ShowModal();
        EXPECT_EQ(form.Owner(), &owner);
        form.UserClose();
    };

    form.ShowModal(&owner);

    EXPECT_THAT(host.log, ElementsAre("loaded", "form", "brought up", "modal begins", "brought up",
                                      "form", "unloaded", "modal ends"));
}

TEST_F(FormHostTest, ModalFormThatUnloadsWhenActivatedIsNotRun) {
    form.onActivate = [this] { form.Unload(); };

    form.ShowModal();

    EXPECT_EQ(host.log.back(), "unloaded");
}

TEST_F(FormHostTest, ObserverHearsChangesAndNothingElse) {
    form.Load();
    host.log.clear();

    form.lblCity.SetCaption("Cairo");
    form.lblCity.SetCaption("Cairo");
    form.hsDepr.SetMax(16);
    form.cmdOK.Refresh();
    form.SetCaption("Other");
    form.Refresh();

    EXPECT_THAT(host.log, ElementsAre("lblCity", "hsDepr", "hsDepr", "cmdOK", "form", "form"));
}

TEST_F(FormHostTest, ObserverHearsAChangeBeforeItsEvent) {
    form.Load();
    host.log.clear();
    form.chkAlarm.onClick = [this] { host.log.push_back("click"); };

    form.chkAlarm.SetValue(0);

    EXPECT_THAT(host.log, ElementsAre("chkAlarm", "click"));
}

TEST_F(FormHostTest, ObserverHearsOfMembersMadeAtRunTimeAndOfTheFocus) {
    form.Show();
    host.log.clear();

    form.mnuL.Load(1);
    form.txtZone.SetFocus();

    EXPECT_THAT(host.log, ElementsAre("form", "form"));
}

TEST_F(FormHostTest, RestoringTheDefinitionIsNotReported) {
    form.Load();
    form.lblCity.SetCaption("Cairo");
    host.log.clear();

    form.Unload();

    EXPECT_EQ(form.lblCity.Caption(), "Nowhere");
    EXPECT_THAT(host.log, ElementsAre("unloaded"));
}

TEST_F(FormHostTest, FormsLiveWithoutAHost) {
    InstallFormHost(nullptr);

    form.ShowModal();

    EXPECT_TRUE(form.Visible());
    EXPECT_THAT(host.log, IsEmpty());
}

}  // namespace
}  // namespace horavex

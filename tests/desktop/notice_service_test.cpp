// Services that show the notices: those that start, end, hang, refuse, and start anew.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/notices_fixture.h"

namespace horavex {
namespace {

using testing::IsEmpty;
using testing::SizeIs;
using namespace std::chrono_literals;

class NoticeServiceTest : public QtNoticesTest {
protected:
    /// Another takes the name, while the former one still owes answers.
    void ReplaceService() {
        formers = {service->notifies, service->question};
        service.reset();
        StartService();
        Settle();
    }

    /// The end of a former service is the answer to what it was asked.
    void Fail(const QDBusMessage& call) {
        Connect("service").send(call.createErrorReply(QDBusError::NoReply, {}));
        Settle();
    }

    /// What a former service was asked.
    struct Asked {
        std::vector<QDBusMessage> notifies;
        QDBusMessage question;
    };

    Asked formers;
};

TEST_F(NoticeServiceTest, ServiceIsThereAsLongAsItsNameIsOwned) {
    MakeNotices();
    EXPECT_TRUE(Until([&] { return notices->HasService(); }));
    service.reset();
    EXPECT_TRUE(Until([&] { return !notices->HasService(); }));
    StartService();
    EXPECT_TRUE(Until([&] { return notices->HasService(); }));
}

TEST_F(NoticeServiceTest, ServiceThatCanBeStartedCountsAsThereUntilItsStartFails) {
    service.reset();
    AddStartable("org.freedesktop.Notifications", "/bin/false");
    MakeNotices();
    ASSERT_TRUE(Until([&] { return notices->HasService(); }));
    notices->Show(NoticeKind::kPrayer, kAthan);
    EXPECT_TRUE(Until([&] { return !notices->HasService(); }));
    StartService();
    EXPECT_TRUE(Until([&] { return notices->HasService(); }));
}

TEST_F(NoticeServiceTest, WithoutABusThereIsNoneAndNothingShows) {
    QtNotices alone{QDBusConnection(QStringLiteral("none"))};
    alone.Show(NoticeKind::kPrayer, kAthan);
    QCoreApplication::processEvents();
    alone.Withdraw(NoticeKind::kPrayer);
    EXPECT_FALSE(alone.HasService());
}

TEST_F(NoticeServiceTest, ServiceThatStartsAnewIsAskedAfreshAndKnowsNoNumbers) {
    MakeNotices();
    Show(kReminder);
    service.reset();
    ASSERT_TRUE(Until([&] { return !notices->HasService(); }));
    StartService();
    service->abilities = QStringList{"body"};
    ASSERT_TRUE(Until([&] { return notices->HasService(); }));
    Show(kReminder);
    EXPECT_EQ(service->questions, 1);
    EXPECT_EQ(service->shown.back().replaced, 0U);
    EXPECT_THAT(service->shown.back().actions, IsEmpty());
}

TEST_F(NoticeServiceTest, ServiceThatStartsAnewShowsWhatIsToStandAgainAndNothingElse) {
    MakeNotices();
    Show(kAthan, NoticeKind::kAthan);
    Show(kReminder);
    service.reset();
    ASSERT_TRUE(Until([&] { return !notices->HasService(); }));
    StartService();
    ASSERT_TRUE(Until([&] { return !service->shown.empty(); }));
    Settle();
    ASSERT_THAT(service->shown, SizeIs(1));
    EXPECT_EQ(service->shown[0].text, kAthan.text);
    EXPECT_EQ(service->shown[0].replaced, 0U);
    EXPECT_TRUE(notices->HasService());
}

TEST_F(NoticeServiceTest, FaultThatAFormerServiceLeavesBehindIsNotTheNextOnes) {
    service->isSlow = true;
    MakeNotices();
    Show(kAthan);
    ReplaceService();
    Fail(formers.notifies.back());
    EXPECT_TRUE(notices->HasService());
    ASSERT_THAT(service->shown, SizeIs(1));
    EXPECT_EQ(service->shown[0].text, kAthan.text);
}

TEST_F(NoticeServiceTest, AbilitiesThatAFormerServiceNeverToldAreAskedOfTheNextOne) {
    service->isMute = true;
    MakeNotices();
    notices->Show(NoticeKind::kAthan, kAthan);
    Settle();
    ReplaceService();
    Fail(formers.question);
    EXPECT_TRUE(notices->HasService());
    ASSERT_THAT(service->shown, SizeIs(1));
    EXPECT_TRUE(service->shown[0].actions.contains("stop"));
}

TEST_F(NoticeServiceTest, NoticesThatHaveWaitedLongAreNoFaultOfTheNextService) {
    service->isMute = true;
    MakeNotices();
    notices->Show(NoticeKind::kAthan, kAthan);
    notices->Show(NoticeKind::kMissed, kReminder);
    Settle();
    now += 1h;
    ReplaceService();
    EXPECT_TRUE(notices->HasService());
}

TEST_F(NoticeServiceTest, ServiceThatRefusesANoticeCountsAsNoneUntilAnotherTakesItsPlace) {
    service->refuses = true;
    MakeNotices();
    Show(kReminder);
    EXPECT_FALSE(notices->HasService());
    Show(kReminder);
    EXPECT_FALSE(notices->HasService());
    service.reset();
    StartService();
    EXPECT_TRUE(Until([&] { return notices->HasService(); }));
}

TEST_F(NoticeServiceTest, ServiceThatSaysNothingToANoticeForThreeSecondsCountsAsNone) {
    service->isSlow = true;
    MakeNotices();
    Show(kAthan);
    now += 2999ms;
    EXPECT_TRUE(notices->HasService());
    now += 1ms;
    EXPECT_FALSE(notices->HasService());
    service->AnswerNotify();
    Settle();
    EXPECT_FALSE(notices->HasService());
    service.reset();
    StartService();
    EXPECT_TRUE(Until([&] { return notices->HasService(); }));
}

TEST_F(NoticeServiceTest, ServiceThatDoesNotTellItsAbilitiesInThreeSecondsCountsAsNone) {
    service->isMute = true;
    MakeNotices();
    notices->Show(NoticeKind::kAthan, kAthan);
    Settle();
    now += 3s;
    EXPECT_FALSE(notices->HasService());
}

TEST_F(NoticeServiceTest, TimeWithoutANoticeThatWaitsIsNoDelay) {
    MakeNotices();
    Show(kAthan);
    now += 1h;
    EXPECT_TRUE(notices->HasService());
    Show(kAthan);
    EXPECT_TRUE(notices->HasService());
    service->isSlow = true;
    Show(kAthan);
    service.reset();
    ASSERT_TRUE(Until([&] { return !notices->HasService(); }));
    now += 1h;
    StartService();
    EXPECT_TRUE(Until([&] { return notices->HasService(); }));
}

TEST_F(NoticeServiceTest, AbilitiesAreAskedOnceForAllThatWaits) {
    MakeNotices();
    notices->Show(NoticeKind::kPrayer, kReminder);
    notices->Show(NoticeKind::kPrayer, kAthan);
    notices->Show(NoticeKind::kMissed, kReminder);
    ASSERT_TRUE(Until([&] { return service->shown.size() == 2; }));
    EXPECT_EQ(service->shown[0].text, kAthan.text);
    EXPECT_EQ(service->questions, 1);
}

TEST_F(NoticeServiceTest, ServiceThatHangsHoldsNobodyUpAndGetsOnlyWhatIsStillWanted) {
    service->isMute = true;
    MakeNotices();
    notices->Show(NoticeKind::kMissed, kReminder);
    notices->Show(NoticeKind::kPrayer, kReminder);
    Settle();
    EXPECT_TRUE(notices->HasService());
    notices->Withdraw(NoticeKind::kMissed);
    notices->Show(NoticeKind::kPrayer, kAthan);
    Settle();
    service->AnswerAbilities();
    Settle();
    ASSERT_EQ(service->shown.size(), 1U);
    EXPECT_EQ(service->shown[0].text, kAthan.text);
    EXPECT_THAT(service->closed, IsEmpty());
}

}  // namespace
}  // namespace horavex

#include "desktop/ports/qt_notices.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDBusArgument>

#include "desktop/notices_fixture.h"
#include "lang/language_pack.h"
#include "lang/own_digits.h"
#include "support/data_folder.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;
using namespace std::chrono_literals;

TEST_F(QtNoticesTest, AthanStandsUntilItIsWithdrawn) {
    MakeNotices();
    Show(kAthan);
    const ShownNotice& shown = service->shown.back();
    EXPECT_EQ(shown.title, "Asr");
    EXPECT_EQ(shown.text, "It is 3:12 PM");
    EXPECT_EQ(shown.actions, QStringList({"default", "Open", "open", "Open", "stop", "Stop"}));
    EXPECT_EQ(shown.milliseconds, 0);
    EXPECT_EQ(shown.hints["urgency"], QVariant::fromValue(uchar{2}));
    EXPECT_EQ(shown.hints["resident"], QVariant(true));
    EXPECT_FALSE(shown.hints.contains("suppress-sound"));
    EXPECT_EQ(shown.hints["desktop-entry"], QVariant("horavex"));
    notices->Withdraw(NoticeKind::kPrayer);
    EXPECT_TRUE(Until([&] { return service->closed == std::vector<uint>{service->number}; }));
}

TEST_F(QtNoticesTest, QuietOneGoesByItselfAndMakesNoSoundButIsSeenOnEveryDesktop) {
    MakeNotices();
    Show(kReminder);
    const ShownNotice& shown = service->shown.back();
    EXPECT_EQ(shown.milliseconds, -1);
    EXPECT_EQ(shown.hints["urgency"], QVariant::fromValue(uchar{1}));
    EXPECT_EQ(shown.hints["suppress-sound"], QVariant(true));
    EXPECT_FALSE(shown.hints.contains("resident"));
    EXPECT_EQ(shown.actions, QStringList({"default", "Open", "open", "Open"}));
}

TEST_F(QtNoticesTest, PictureIsTheEmblem) {
    MakeNotices();
    Show(kAthan);
    const auto picture = service->shown.back().hints["image-data"].value<QDBusArgument>();
    int width = 0, height = 0, stride = 0, bits = 0, channels = 0;
    bool hasAlpha = false;
    QByteArray bytes;
    picture.beginStructure();
    picture >> width >> height >> stride >> hasAlpha >> bits >> channels >> bytes;
    picture.endStructure();
    EXPECT_THAT((std::array{width, height, stride, bits, channels}),
                ElementsAre(64, 64, 256, 8, 4));
    EXPECT_EQ(bytes.size(), 64 * 256);
    const auto middle = bytes.mid(32 * 256 + 4 * 10, 4);  // the crescent
    EXPECT_EQ(middle, QByteArray("\xe3\xc0\x6c\xff", 4));
}

TEST_F(QtNoticesTest, TextsHaveTheDigitsOfTheLanguage) {
    TestPlatform platform;
    DataFolder(platform.files).Write("lang/Urdu.ini", "[timetables]\nDigits=۰۱۲۳۴۵۶۷۸۹\n");
    currentLanguage = "Urdu";
    ShowOwnDigits(true);
    MakeNotices();
    Show(kAthan);
    EXPECT_EQ(service->shown[0].text, "It is ۳:۱۲ PM");
    ShowOwnDigits(false);
}

TEST_F(QtNoticesTest, OneOfAKindTakesThePlaceOfTheFormer) {
    MakeNotices();
    Show(kReminder);
    const uint first = service->number;
    Show(kReminder, NoticeKind::kMissed);
    Show(kAthan);
    EXPECT_EQ(service->shown[1].replaced, 0U);
    EXPECT_EQ(service->shown[2].replaced, first);
}

TEST_F(QtNoticesTest, NewestTextIsShownOnceTheNumberOfTheFirstIsKnown) {
    service->isSlow = true;
    MakeNotices();
    Show(kReminder);
    notices->Show(NoticeKind::kPrayer, {"Asr", "in 9 minutes", true, "", ""});
    notices->Show(NoticeKind::kPrayer, kAthan);
    Settle();
    EXPECT_EQ(service->shown.size(), 1U);
    service->AnswerNotify();
    ASSERT_TRUE(Until([&] { return service->shown.size() == 2; }));
    EXPECT_EQ(service->shown[1].text, kAthan.text);
    EXPECT_EQ(service->shown[1].replaced, service->number);
    service->AnswerNotify();
    Settle();
    EXPECT_EQ(service->shown.size(), 2U);
}

TEST_F(QtNoticesTest, WithdrawnOneIsClosedThoughItsNumberComesLater) {
    service->isSlow = true;
    MakeNotices();
    Show(kAthan);
    notices->Withdraw(NoticeKind::kPrayer);
    Settle();
    EXPECT_THAT(service->closed, IsEmpty());
    service->AnswerNotify();
    EXPECT_TRUE(Until([&] { return service->closed == std::vector<uint>{service->number}; }));
}

TEST_F(QtNoticesTest, NothingIsAskedOfAServiceForANoticeThatIsNotOnView) {
    MakeNotices();
    notices->Withdraw(NoticeKind::kMissed);
    Show(kAthan);
    notices->Withdraw(NoticeKind::kPrayer);
    notices->Withdraw(NoticeKind::kPrayer);
    Settle();
    EXPECT_EQ(service->closed.size(), 1U);
}

TEST_F(QtNoticesTest, ButtonsAndAClickOnTheNoticeAreTheUsersActions) {
    MakeNotices();
    Show(kAthan);
    Show(kReminder, NoticeKind::kMissed);
    Signal("ActionInvoked", {service->number, "default"});
    Signal("ActionInvoked", {service->number - 1, "open"});
    Signal("ActionInvoked", {service->number - 1, "stop"});
    EXPECT_THAT(actions, ElementsAre(Pair(NoticeKind::kMissed, NoticeAction::kOpen),
                                     Pair(NoticeKind::kPrayer, NoticeAction::kOpen),
                                     Pair(NoticeKind::kPrayer, NoticeAction::kStop)));
}

TEST_F(QtNoticesTest, StoppedOneGoesAndAnOpenedOneStays) {
    MakeNotices();
    Show(kAthan);
    Signal("ActionInvoked", {service->number, "open"});
    EXPECT_THAT(service->closed, IsEmpty());
    Signal("ActionInvoked", {service->number, "stop"});
    EXPECT_THAT(service->closed, ElementsAre(service->number));
}

TEST_F(QtNoticesTest, ActionsOnOthersNoticesAreNotOurs) {
    MakeNotices();
    Signal("ActionInvoked", {0U, "stop"});
    Show(kAthan);
    Signal("ActionInvoked", {service->number + 1, "stop"});
    Signal("NotificationClosed", {service->number, 1U});
    Signal("ActionInvoked", {service->number, "stop"});
    Signal("ActionInvoked", {0U, "stop"});
    Signal("ActionInvoked", {});
    EXPECT_THAT(actions, IsEmpty());
}

TEST_F(QtNoticesTest, ClosedOneIsNotReplacedAndNotClosedAgain) {
    MakeNotices();
    Show(kAthan);
    Signal("NotificationClosed", {service->number, 2U});
    notices->Withdraw(NoticeKind::kPrayer);
    Show(kAthan);
    EXPECT_EQ(service->shown.back().replaced, 0U);
    EXPECT_THAT(service->closed, IsEmpty());
}

TEST_F(QtNoticesTest, OneThatTheUserPutsAwayTellsSo) {
    MakeNotices();
    Show(kAthan);
    Signal("NotificationClosed", {service->number, 2U});
    EXPECT_THAT(actions, ElementsAre(Pair(NoticeKind::kPrayer, NoticeAction::kDismiss)));
}

TEST_F(QtNoticesTest, OneThatGoesByItselfOrBehindAPressOfItsButtonIsNotPutAwayByTheUser) {
    MakeNotices();
    Show(kReminder);
    Signal("NotificationClosed", {service->number, 1U});
    Show(kAthan);
    Signal("ActionInvoked", {service->number, "open"});
    Signal("NotificationClosed", {service->number, 2U});
    EXPECT_THAT(actions, ElementsAre(Pair(NoticeKind::kPrayer, NoticeAction::kOpen)));
    Show(kReminder);
    Signal("NotificationClosed", {service->number, 2U});
    EXPECT_EQ(actions.back().second, NoticeAction::kDismiss);
}

TEST_F(QtNoticesTest, OneThatIsPutAwayAWhileBehindAPressOfItsButtonTellsSo) {
    MakeNotices();
    Show(kAthan);
    Signal("ActionInvoked", {service->number, "open"});
    now += 1s;
    Signal("NotificationClosed", {service->number, 2U});
    EXPECT_EQ(actions.back().second, NoticeAction::kDismiss);
    EXPECT_THAT(service->shown, SizeIs(1));
}

TEST_F(QtNoticesTest, AthanThatTheServicePutsAwayAtAPressOfOpenIsShownAgain) {
    MakeNotices();
    Show(kAthan);
    const uint first = service->number;
    Signal("ActionInvoked", {first, "open"});
    Signal("NotificationClosed", {first, 2U});
    ASSERT_THAT(service->shown, SizeIs(2));
    EXPECT_EQ(service->shown.back().title, kAthan.title);
    EXPECT_EQ(service->shown.back().replaced, 0U);
    Signal("NotificationClosed", {service->number, 2U});
    EXPECT_THAT(service->shown, SizeIs(2));
    EXPECT_EQ(actions.back().second, NoticeAction::kDismiss);
}

TEST_F(QtNoticesTest, NeitherAStoppedAthanNorAQuietNoticeIsShownAgainBehindAPress) {
    MakeNotices();
    Show(kAthan);
    Signal("ActionInvoked", {service->number, "stop"});
    Signal("NotificationClosed", {service->number, 2U});
    Show(kReminder);
    Signal("ActionInvoked", {service->number, "open"});
    Signal("NotificationClosed", {service->number, 2U});
    EXPECT_THAT(service->shown, SizeIs(2));
}

TEST_F(QtNoticesTest, PuttingAwayAReminderIsNoWordOnTheAthanThatIsOnItsWay) {
    MakeNotices();
    Show(kReminder);
    service->isSlow = true;
    Show(kAthan);
    Signal("NotificationClosed", {service->number, 2U});
    EXPECT_THAT(actions, IsEmpty());
}

TEST_F(QtNoticesTest, WindowsThatAnActionOpensMayComeToTheFront) {
    MakeNotices();
    Show(kAthan);
    Signal("ActivationToken", {service->number, "token-1"});
    Signal("ActionInvoked", {service->number, "open"});
    EXPECT_EQ(token, "token-1");
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
}

TEST_F(QtNoticesTest, WithdrawnOneWhoseReplacementIsOnItsWayIsClosedWithoutWaitingForTheAnswer) {
    MakeNotices();
    Show(kAthan);
    service->isSlow = true;
    Show(kAthan);
    notices->Withdraw(NoticeKind::kPrayer);
    Settle();
    EXPECT_THAT(service->closed, ElementsAre(service->number));
}

TEST_F(QtNoticesTest, MarksAreSetOffWhereTheServiceReadsThem) {
    MakeNotices();
    const Notice marked = {"Asr <1>", "Fish & <b>chips</b>", true, "", ""};
    Show(marked);
    EXPECT_EQ(service->shown.back().title, "Asr <1>");
    EXPECT_EQ(service->shown.back().text, "Fish &amp; &lt;b&gt;chips&lt;/b&gt;");
    Show(marked);
    EXPECT_EQ(service->questions, 1);
}

TEST_F(QtNoticesTest, MarksAreLeftWhereTheServiceDoesNotReadThem) {
    service->abilities = QStringList{"actions"};
    MakeNotices();
    Show({"Asr", "Fish & <b>chips</b>", true, "", ""});
    EXPECT_EQ(service->shown.back().text, "Fish & <b>chips</b>");
}

}  // namespace
}  // namespace horavex

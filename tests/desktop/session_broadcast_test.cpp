#include "linux/bus/session_broadcast.h"

#include <QAbstractEventDispatcher>
#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusInterface>
#include <QDBusReply>
#include <QFile>
#include <QXmlStreamReader>
#include <optional>

#include "desktop/ports/bus_pump.h"
#include "linux/bus/bus_names.h"
#include "private_bus.h"
#include "support/build_folder.h"
#include "support/scoped_variable.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

/// What a reader of a description sees of an interface: kinds, names and types, in order.
QStringList Described(const QByteArray& xml) {
    QStringList found;
    QXmlStreamReader reader(xml);
    bool isOurs = false;
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement()) {
            continue;
        }
        const auto attributes = reader.attributes();
        const auto value = [&](const char* name) {
            return attributes.value(QLatin1String(name)).toString();
        };
        if (reader.name() == QLatin1String("interface")) {
            isOurs = value("name") == QLatin1String(kBusInterface);
        } else if (isOurs && reader.name() != QLatin1String("annotation")) {
            found += reader.name().toString() + QLatin1Char(' ') + value("name") +
                     QLatin1Char(' ') + value("type") + QLatin1Char(' ') + value("access");
        }
    }
    return found;
}

ToldState SomeState() {
    return {.place = "Cairo, Egypt",
            .zone = "Africa/Cairo",
            .moments = {{"Fajr", "2026-11-21T04:56:00+02:00", "sun"}},
            .nextPrayer = "Asr",
            .nextTime = "2026-11-21T14:38:00+02:00",
            .hijriDate = "1448-06-11",
            .athanPlaying = false,
            .quietUntil = ""};
}

struct SessionBroadcastTest : PrivateBus {
    SessionBroadcastTest() {
        broadcast.onShow = [this] { asked.push_back("Show"); };
        broadcast.onHide = [this] { asked.push_back("Hide"); };
        broadcast.onAthanNow = [this] { asked.push_back("AthanNow"); };
        broadcast.onStopAthan = [this] { asked.push_back("StopAthan"); };
        broadcast.onQuiet = [this](int minutes) {
            asked.push_back("Quiet " + std::to_string(minutes));
        };
    }

    bool IsOwned() {
        return client.interface()->isServiceRegistered(QLatin1String(kBusName)).value();
    }

    BusObject Object(const char* interface = kBusInterface) {
        return {client, QLatin1String(kBusName), QLatin1String(kBusPath), QLatin1String(interface)};
    }

    QDBusMessage Ask(const char* method, const QVariantList& arguments = {},
                     const char* interface = kBusInterface) {
        QDBusMessage answer;
        bool isThere = false;
        Object(interface).Ask(context, method, arguments, [&](const QDBusMessage& message) {
            answer = message;
            isThere = true;
        });
        EXPECT_TRUE(Until([&] { return isThere; }));
        return answer;
    }

    QVariant Property(const char* name) {
        return ValueOf(Ask("Get", {QLatin1String(kBusInterface), QLatin1String(name)},
                           "org.freedesktop.DBus.Properties"));
    }

    ScopedVariable address{"DBUS_SESSION_BUS_ADDRESS", Address().c_str()};
    QObject context;
    QDBusConnection client = Connect("client");
    SessionBroadcast broadcast{[](const std::function<void()>& request) { request(); }};
    BusPump pump{broadcast};
    std::vector<std::string> asked;
};

TEST_F(SessionBroadcastTest, NobodyFindsItBeforeItHasAState) {
    EXPECT_EQ(broadcast.Descriptor(), -1);
    EXPECT_FALSE(IsOwned());
    broadcast.Publish(SomeState());
    EXPECT_TRUE(IsOwned());
    EXPECT_EQ(Property("Place").toString(), QStringLiteral("Cairo, Egypt"));
}

TEST_F(SessionBroadcastTest, InterfaceIsTheDocumentedOne) {
    broadcast.Publish(SomeState());
    QFile file(QString::fromStdString(SourcePath("docs/org.horavex.PrayerTimes.xml")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QDBusMessage answer = Ask("Introspect", {}, "org.freedesktop.DBus.Introspectable");
    QStringList running = Described(ValueOf(answer).toString().toUtf8());
    QStringList documented = Described(file.readAll());
    ASSERT_FALSE(documented.empty());
    running.sort();
    documented.sort();
    EXPECT_EQ(running.join(QLatin1Char('\n')).toStdString(),
              documented.join(QLatin1Char('\n')).toStdString());
}

TEST_F(SessionBroadcastTest, PropertiesAreThoseOfTheStateThatWasPublished) {
    broadcast.Publish(SomeState());
    EXPECT_EQ(Property("Place").toString(), QStringLiteral("Cairo, Egypt"));
    EXPECT_EQ(Property("Zone").toString(), QStringLiteral("Africa/Cairo"));
    EXPECT_EQ(Property("NextPrayer").toString(), QStringLiteral("Asr"));
    EXPECT_EQ(Property("NextTime").toString(), QStringLiteral("2026-11-21T14:38:00+02:00"));
    EXPECT_EQ(Property("HijriDate").toString(), QStringLiteral("1448-06-11"));
    EXPECT_EQ(Property("AthanPlaying").toBool(), false);
    EXPECT_EQ(Property("QuietUntil").toString(), QString());
    const auto moments = Property("Moments").value<QDBusArgument>();
    EXPECT_EQ(moments.currentSignature(), QStringLiteral("a(sss)"));
}

TEST_F(SessionBroadcastTest, ChangesAloneAreSignalled) {
    broadcast.Publish(SomeState());
    std::vector<std::string> changed;
    const auto hearing = Object().HearProperties([&](const QDBusMessage& message) {
        const auto values = qdbus_cast<QVariantMap>(message.arguments().at(1));
        for (const QString& name : values.keys()) {
            changed.push_back(name.toStdString());
        }
    });
    Settle();
    ToldState state = SomeState();
    broadcast.Publish(state);
    Settle();
    EXPECT_THAT(changed, IsEmpty());
    state.athanPlaying = true;
    broadcast.Publish(state);
    Settle();
    EXPECT_THAT(changed, ElementsAre("AthanPlaying"));
    changed.clear();
    broadcast.Publish({});
    Settle();
    EXPECT_THAT(changed, UnorderedElementsAre("Place", "Zone", "Moments", "NextPrayer", "NextTime",
                                              "HijriDate", "AthanPlaying"));
}

TEST_F(SessionBroadcastTest, SignalsCarryWhatTheyTell) {
    std::vector<std::string> heard;
    std::vector<std::unique_ptr<BusSignal>> hearing;
    for (const char* name : {"PrayerArrived", "ReminderDue", "AthanStopped", "DayChanged"}) {
        hearing.push_back(Object().Hear(name, [&, name](const QDBusMessage& message) {
            std::string text = name;
            for (const QVariant& argument : message.arguments()) {
                text += " " + argument.toString().toStdString();
            }
            heard.push_back(text);
        }));
    }
    broadcast.Publish(SomeState());
    Settle();
    broadcast.TellPrayerArrived("Asr", "2026-11-21T14:38:00+02:00");
    broadcast.TellReminderDue("iqama", "Asr", 15);
    broadcast.TellAthanStopped();
    broadcast.TellDayChanged("2026-11-22");
    Settle();
    EXPECT_THAT(heard,
                ElementsAre("PrayerArrived Asr 2026-11-21T14:38:00+02:00",
                            "ReminderDue iqama Asr 15", "AthanStopped", "DayChanged 2026-11-22"));
}

TEST_F(SessionBroadcastTest, RequestsReachTheProgram) {
    broadcast.Publish(SomeState());
    for (const char* method : {"Show", "Hide", "AthanNow", "StopAthan"}) {
        EXPECT_EQ(Ask(method).type(), QDBusMessage::ReplyMessage);
    }
    EXPECT_EQ(Ask("Quiet", {30U}).type(), QDBusMessage::ReplyMessage);
    EXPECT_THAT(asked, ElementsAre("Show", "Hide", "AthanNow", "StopAthan", "Quiet 30"));
}

TEST_F(SessionBroadcastTest, QuietOfMoreThanADayIsRefused) {
    broadcast.Publish(SomeState());
    EXPECT_EQ(Ask("Quiet", {1441U}).errorName(),
              QStringLiteral("org.freedesktop.DBus.Error.InvalidArgs"));
    EXPECT_THAT(asked, IsEmpty());
}

/// As the clock does in a minute.
void PublishForAMinute(SessionBroadcast& broadcast) {
    for (int second = 0; second < 60; ++second) {
        broadcast.Publish(SomeState());
    }
}

TEST_F(SessionBroadcastTest, SecondProcessIsNotHeardUntilTheFirstHasGone) {
    std::optional<SessionBroadcast> first(std::in_place, [](const std::function<void()>&) {});
    first->Publish({});
    broadcast.Publish(SomeState());
    EXPECT_EQ(broadcast.Descriptor(), -1);
    broadcast.TellAthanStopped();
    first.reset();
    PublishForAMinute(broadcast);
    EXPECT_EQ(Property("Place").toString(), QStringLiteral("Cairo, Egypt"));
}

TEST(SessionBroadcastWithoutABus, NothingHappens) {
    const ScopedVariable address("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    SessionBroadcast broadcast([](const std::function<void()>&) {});
    const BusPump pump(broadcast);
    broadcast.Publish(SomeState());
    EXPECT_EQ(broadcast.Descriptor(), -1);
    broadcast.TellAthanStopped();
    broadcast.Serve();
    PublishForAMinute(broadcast);
}

/// A bus that can be ended and begun again at its address.
struct EndingBus : testing::Test {
    EndingBus() { Begin(); }

    void Begin() {
        daemon.emplace(
            std::vector<std::string>{"dbus-daemon", "--nofork", "--print-address=1",
                                     "--config-file=" + WriteBusConfiguration(folder.Path())},
            Environment(), folder / "out", folder / "err");
        EXPECT_TRUE(Until([this] { return ContentOf(folder / "out").ends_with('\n'); }));
    }

    void End() {
        daemon.reset();
        EXPECT_TRUE(Until([&] { return broadcast.Descriptor() == -1; }));
    }

    std::string Address() const { return "unix:path=" + folder / "bus"; }

    TemporaryFolder folder;
    std::optional<ChildProcess> daemon;
    ScopedVariable address{"DBUS_SESSION_BUS_ADDRESS", Address().c_str()};
    SessionBroadcast broadcast{[](const std::function<void()>&) {}};
    BusPump pump{broadcast};
};

TEST_F(EndingBus, LeavesNothingToWaitFor) {
    broadcast.Publish(SomeState());
    ASSERT_NE(broadcast.Descriptor(), -1);
    End();
    QAbstractEventDispatcher* loop = QAbstractEventDispatcher::instance();
    EXPECT_TRUE(Until([&] { return !loop->processEvents(QEventLoop::AllEvents); }));
    for (int turn = 0; turn < 5; ++turn) {
        EXPECT_FALSE(loop->processEvents(QEventLoop::AllEvents)) << "something is ready for ever";
    }
    broadcast.Publish(SomeState());
    broadcast.TellAthanStopped();
    broadcast.Serve();
}

TEST_F(EndingBus, IsFoundAgainWithinAMinute) {
    broadcast.Publish(SomeState());
    End();
    Begin();
    broadcast.Publish(SomeState());
    EXPECT_EQ(broadcast.Descriptor(), -1) << "asked at once";
    PublishForAMinute(broadcast);
    EXPECT_NE(broadcast.Descriptor(), -1);
    ChildProcess asking({"gdbus", "introspect", "--address", Address(), "--dest", kBusName,
                         "--object-path", kBusPath},
                        {}, folder / "told", folder / "complaint");
    EXPECT_TRUE(Until([&] { return !asking.IsRunning(); }));
    EXPECT_EQ(asking.Wait(), 0) << ContentOf(folder / "complaint");
}

}  // namespace
}  // namespace horavex

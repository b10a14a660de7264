#include "desktop/ports/qt_whereabouts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>

#include "desktop/private_bus.h"

namespace horavex {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kClientPath = "/org/freedesktop/GeoClue2/Client/1";
constexpr const char* kLocationPath = "/org/freedesktop/GeoClue2/Client/1/Location/0";

/// A location service on a bus of the test, which knows the position after some looks.
class LocationService : public QDBusVirtualObject {
public:
    explicit LocationService(QDBusConnection bus) : bus_(std::move(bus)) {
        bus_.registerVirtualObject(QStringLiteral("/org"), this, QDBusConnection::SubPath);
        bus_.registerService(QLatin1String(kLocationService));
    }

    ~LocationService() override { bus_.unregisterService(QLatin1String(kLocationService)); }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        calls.push_back(message.member().toStdString());
        if (message.member() == refused) {
            bus.send(message.createErrorReply(QDBusError::AccessDenied, "no"));
        } else {
            bus.send(message.createReply(ReplyTo(message)));
        }
        return true;
    }

    std::vector<std::string> calls;
    std::vector<QVariant> properties;  // that were set
    QString refused;                   // a method that fails
    int looksInVain = 1;
    QVariantMap location = {{"Latitude", 59.91}, {"Longitude", 10.75}, {"Accuracy", 1000.0}};

private:
    QVariantList ReplyTo(const QDBusMessage& message) {
        const QString method = message.member();
        if (method == QLatin1String("GetClient")) {
            return {QVariant::fromValue(QDBusObjectPath(kClientPath))};
        }
        if (method == QLatin1String("Set")) {
            properties.push_back(message.arguments().at(2).value<QDBusVariant>().variant());
        }
        if (method == QLatin1String("Get")) {
            const QDBusObjectPath path(looksInVain-- > 0 ? "/" : kLocationPath);
            return {QVariant::fromValue(QDBusVariant(QVariant::fromValue(path)))};
        }
        if (method == QLatin1String("GetAll")) {
            return {location};
        }
        return {};
    }

    QDBusConnection bus_;
};

class QtWhereaboutsTest : public PrivateBus {
protected:
    void Ask(QtWhereabouts& whereabouts) {
        whereabouts.Locate([this](const std::optional<EarthPosition>& point) {
            ++answers;
            answer = point;
        });
    }

    int answers = 0;
    std::optional<EarthPosition> answer;
};

TEST_F(QtWhereaboutsTest, ServiceIsThereOnlyIfTheBusKnowsIt) {
    const QtWhereabouts whereabouts(Connect("client"));
    EXPECT_FALSE(whereabouts.CanLocate());
    const LocationService service(Connect("service"));
    EXPECT_TRUE(whereabouts.CanLocate());
    EXPECT_THAT(service.calls, IsEmpty());
}

TEST_F(QtWhereaboutsTest, WithoutABusThereIsNone) {
    const QtWhereabouts whereabouts(QDBusConnection(QStringLiteral("none")));
    EXPECT_FALSE(whereabouts.CanLocate());
}

TEST_F(QtWhereaboutsTest, PositionIsTakenAndTheClientGivenBack) {
    LocationService service(Connect("service"));
    QtWhereabouts whereabouts(Connect("client"));
    Ask(whereabouts);
    ASSERT_TRUE(Until([this] { return answers > 0; }));
    EXPECT_EQ(answer, (EarthPosition{59.91, 10.75}));
    EXPECT_THAT(service.properties, ElementsAre(QVariant("horavex"), QVariant(4U)));
    whereabouts.StopLocating();
    EXPECT_TRUE(Until([&] { return service.calls.back() == "DeleteClient"; }));
    EXPECT_THAT(service.calls, Contains("Stop"));
    EXPECT_EQ(answers, 1);
}

class RefusedLocation : public QtWhereaboutsTest,
                        public testing::WithParamInterface<const char*> {};

TEST_P(RefusedLocation, IsAnsweredWithNothing) {
    LocationService service(Connect("service"));
    service.refused = QLatin1String(GetParam());
    QtWhereabouts whereabouts(Connect("client"));
    Ask(whereabouts);
    ASSERT_TRUE(Until([this] { return answers > 0; }));
    EXPECT_EQ(answer, std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Methods, RefusedLocation,
                         testing::Values("GetClient", "Start", "Get", "GetAll"));

TEST_F(QtWhereaboutsTest, LocationWithoutAPositionIsNone) {
    LocationService service(Connect("service"));
    service.location = {{"Latitude", 59.91}};
    QtWhereabouts whereabouts(Connect("client"));
    Ask(whereabouts);
    ASSERT_TRUE(Until([this] { return answers > 0; }));
    EXPECT_EQ(answer, std::nullopt);
}

TEST_F(QtWhereaboutsTest, ServiceThatDoesNotKnowIsGivenUp) {
    LocationService service(Connect("service"));
    service.looksInVain = 1000;
    QtWhereabouts whereabouts(Connect("client"), 300);
    Ask(whereabouts);
    ASSERT_TRUE(Until([this] { return answers > 0; }));
    EXPECT_EQ(answer, std::nullopt);
}

TEST_F(QtWhereaboutsTest, StoppedQuestionIsNotAnswered) {
    LocationService service(Connect("service"));
    QtWhereabouts whereabouts(Connect("client"));
    Ask(whereabouts);
    ASSERT_TRUE(Until([&] { return !service.calls.empty(); }));
    whereabouts.StopLocating();
    Ask(whereabouts);
    ASSERT_TRUE(Until([this] { return answers > 0; }));
    EXPECT_EQ(answers, 1);
}

TEST_F(QtWhereaboutsTest, CountryIsThatOfTheLocale) {
    const auto countryOf = [this](const QLocale& locale) {
        return QtWhereabouts(Connect("client"), QtWhereabouts::kPatience, locale).Country();
    };
    EXPECT_EQ(countryOf(QLocale(QStringLiteral("nb_NO"))), "Norway");
    EXPECT_EQ(countryOf(QLocale(QStringLiteral("en_US"))), "United States");
    EXPECT_EQ(countryOf(QLocale::c()), "");
}

}  // namespace
}  // namespace horavex

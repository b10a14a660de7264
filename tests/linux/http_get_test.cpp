#include "linux/http_get.h"

#include <fstream>

#include "support/loopback_server.h"
#include "support/scoped_variable.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Time that no answer of a living server of this machine takes.
constexpr long kAmple = 60'000;
/// Time that an answer which never comes is waited for.
constexpr long kShort = 50;

class HttpGetTest : public testing::Test {
protected:
    std::string Get(const std::string& path, const FetchLimits& limits = {kAmple, 64 * 1024}) {
        return StringOf(HttpGet(server.Address() + path, limits));
    }

    ScopedVariable noProxy{"no_proxy", "127.0.0.1"};
    LoopbackServer server;
};

TEST(FetchLimitsTest, AreLessThanAPrayersTenSecondsAnd64KiB) {
    EXPECT_EQ(FetchLimits().milliseconds, 8'000);
    EXPECT_EQ(FetchLimits().bytes, 65'536U);
}

TEST_F(HttpGetTest, BodyComesByteForByte) {
    const std::string body("4.1.1\r\n\0\xff end \n", 15);
    server.Serve("/update/update.txt", body);
    EXPECT_EQ(Get("/update/update.txt"), body);
    EXPECT_THAT(server.Requests(), ElementsAre("/update/update.txt"));
}

TEST_F(HttpGetTest, EmptyBodyIsEmpty) {
    server.Serve("/", "");
    EXPECT_EQ(Get("/"), "");
}

TEST_F(HttpGetTest, BodyOfAnErrorPageIsABody) {
    server.ServeRaw("/", "HTTP/1.1 404 Not Found\r\nContent-Length: 9\r\n\r\nnot here\n");
    EXPECT_EQ(Get("/"), "not here\n");
}

TEST_F(HttpGetTest, BodyWithoutALengthEndsWithTheConnection) {
    server.ServeRaw("/", "HTTP/1.0 200 OK\r\n\r\n4.1.1");
    EXPECT_EQ(Get("/"), "4.1.1");
}

TEST_F(HttpGetTest, ConnectionClosedWithoutAWordIsEmpty) {
    server.ServeRaw("/", "");
    EXPECT_EQ(Get("/"), "");
}

TEST_F(HttpGetTest, BodyShorterThanItsLengthIsEmpty) {
    server.ServeRaw("/", "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n4.1.1");
    EXPECT_EQ(Get("/"), "");
}

TEST_F(HttpGetTest, AnswerOfAnotherProtocolIsEmpty) {
    server.ServeRaw("/", "220 ready\r\n4.1.1\r\n");
    EXPECT_EQ(Get("/"), "");
}

TEST_F(HttpGetTest, NobodyListeningIsEmpty) {
    std::string address;
    {
        const LoopbackServer gone;
        address = gone.Address();
    }
    EXPECT_THAT(HttpGet(address + "/", {kAmple, 1000}), IsEmpty());
}

TEST_F(HttpGetTest, ServerThatSaysNothingIsLeft) {
    server.Keep("/");
    EXPECT_EQ(Get("/", {kShort, 1000}), "");
}

// Ten seconds of drops, each well before the last one is forgotten.
TEST_F(HttpGetTest, DrippingServerIsLeftAtTheSameTime) {
    server.Drip("/", "HTTP/1.1 200 OK\r\n\r\n" + std::string(10'000, 'x'), 1);
    EXPECT_EQ(Get("/", {kShort, 64 * 1024}), "");
}

TEST_F(HttpGetTest, SlowServerIsWaitedForWithinTheTime) {
    server.Drip("/", "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\n4.1.1", 7);
    EXPECT_EQ(Get("/"), "4.1.1");
}

TEST_F(HttpGetTest, EndlessBodyIsEmpty) {
    server.ServeForever("/");
    EXPECT_EQ(Get("/", {kAmple, 64 * 1024}), "");
}

TEST_F(HttpGetTest, BodyAsLongAsTheLimitPassesAndOneByteMoreDoesNot) {
    server.Serve("/fits", std::string(1000, 'x'));
    server.Serve("/long", std::string(1001, 'x'));
    EXPECT_EQ(Get("/fits", {kAmple, 1000}), std::string(1000, 'x'));
    EXPECT_EQ(Get("/long", {kAmple, 1000}), "");
}

TEST_F(HttpGetTest, RedirectionWithinTheWebIsFollowed) {
    server.Redirect("/old", "/new");
    server.Serve("/new", "4.1.1");
    EXPECT_EQ(Get("/old"), "4.1.1");
    EXPECT_THAT(server.Requests(), ElementsAre("/old", "/new"));
}

// A server that speaks without protection cannot redirect what has to be protected; the rule is
// looked at alone.
TEST(RedirectionsTest, LeadFromHttpsToHttpsAlone) {
    EXPECT_STREQ(RedirectionsOf("https://prayer.example/update.txt"), "https");
    EXPECT_STREQ(RedirectionsOf("HTTPS://prayer.example"), "https");
    EXPECT_STREQ(RedirectionsOf("http://prayer.example"), "http,https");
    EXPECT_STREQ(RedirectionsOf("prayer.example/https://"), "http,https");
}

TEST_F(HttpGetTest, CircleOfRedirectionsIsEmpty) {
    server.Redirect("/a", "/a");
    EXPECT_EQ(Get("/a"), "");
    EXPECT_EQ(server.Requests().size(), 6U);
}

TEST_F(HttpGetTest, RedirectionOutOfTheWebIsEmpty) {
    const TemporaryFolder folder;
    std::ofstream(folder / "secret") << "secret";
    for (const std::string& target :
         {"file://" + folder.Path() + "/secret", std::string("ftp://127.0.0.1/secret"),
          std::string("gopher://127.0.0.1/secret"), std::string("dict://127.0.0.1/secret")}) {
        server.Redirect("/", target);
        EXPECT_EQ(Get("/"), "") << target;
    }
}

// The server itself stands where the redirection leads; it answers one after the other, so that
// the last request would come behind the one in question.
TEST_F(HttpGetTest, RedirectionOutOfTheWebIsNotEvenTried) {
    server.Redirect("/", "ftp" + server.Address().substr(4) + "/secret");
    EXPECT_EQ(Get("/", {kShort, 1000}), "");
    Get("/last");
    EXPECT_THAT(server.Requests(), ElementsAre("/", "/last"));
}

TEST_F(HttpGetTest, AddressOutOfTheWebIsEmpty) {
    const TemporaryFolder folder;
    std::ofstream(folder / "secret") << "secret";
    EXPECT_THAT(HttpGet("file://" + folder.Path() + "/secret", {kAmple, 1000}), IsEmpty());
    EXPECT_THAT(HttpGet("ftp://127.0.0.1/secret", {kAmple, 1000}), IsEmpty());
    EXPECT_THAT(HttpGet("", {kAmple, 1000}), IsEmpty());
    EXPECT_THAT(HttpGet("http://", {kAmple, 1000}), IsEmpty());
}

}  // namespace
}  // namespace horavex

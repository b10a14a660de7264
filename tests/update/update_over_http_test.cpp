// The update check over real transfers from a server of this machine.

#include "base/program_version.h"
#include "linux/http_get.h"
#include "support/loopback_server.h"
#include "support/scoped_variable.h"
#include "support/test_platform.h"
#include "update/update_check.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

constexpr const char* kPath = "/update/update.txt";
constexpr const char* kUpdate = "Update Available.";
constexpr const char* kNothingNew = "No software update available at this time.";
constexpr const char* kNoAnswer = "Please check your internet connection and try again.";

class UpdateOverHttpTest : public testing::Test {
protected:
    UpdateOverHttpTest() {
        platform.registry.CreateKey("Software\\Horavex\\Settings");
        platform.registry.SetValue("Software\\Horavex\\Settings", "Web Server", server.Address());
        platform.network.connection = {true, kLanConnection};
        platform.network.answer = [this] {
            return StringOf(HttpGet(platform.network.requests.back(), limits));
        };
    }

    void ExpectMessage(const std::string& message) {
        platform.dialogs.messages.clear();
        CheckForUpdate();
        ASSERT_EQ(platform.dialogs.messages.size(), 1U);
        EXPECT_THAT(platform.dialogs.messages[0].text, StartsWith(message));
    }

    void ExpectMessageFor(const std::string& body, const std::string& message) {
        server.Serve(kPath, body);
        ExpectMessage(message);
    }

    ScopedVariable noProxy{"no_proxy", "127.0.0.1"};
    LoopbackServer server;
    TestPlatform platform;
    FetchLimits limits{60'000, 64 * 1024};
};

TEST_F(UpdateOverHttpTest, VersionOfTheServerIsCompared) {
    const std::string running = RunningVersionText();
    ExpectMessageFor("0.9.9\n", kUpdate);
    ExpectMessageFor(running + "\n", kNothingNew);
    ExpectMessageFor(running + " \n", kUpdate);
    ExpectMessageFor("0.9.9\r\n" + running, kNothingNew);
    ExpectMessageFor("", kNoAnswer);
    EXPECT_THAT(server.Requests(), ElementsAre(kPath, kPath, kPath, kPath, kPath));
}

TEST_F(UpdateOverHttpTest, ErrorPageIsTakenForAnUpdate) {
    server.ServeRaw(kPath, "HTTP/1.1 404 Not Found\r\nContent-Length: 10\r\n\r\nNot Found\n");
    ExpectMessage(kUpdate);
}

TEST_F(UpdateOverHttpTest, ServerThatClosesAtOnceIsNoAnswer) {
    server.ServeRaw(kPath, "");
    ExpectMessage(kNoAnswer);
}

TEST_F(UpdateOverHttpTest, ServerThatIsSlowWithinTheTimeIsHeard) {
    server.Drip(kPath, "HTTP/1.1 200 OK\r\n\r\n" + RunningVersionText(), 7);
    ExpectMessage(kNothingNew);
}

TEST_F(UpdateOverHttpTest, ServerThatDripsOrSaysNothingIsNoAnswer) {
    limits.milliseconds = 50;
    server.Drip(kPath, "HTTP/1.1 200 OK\r\n\r\n" + std::string(10'000, '4'), 1);
    ExpectMessage(kNoAnswer);
    server.Keep(kPath);
    ExpectMessage(kNoAnswer);
}

TEST_F(UpdateOverHttpTest, EndlessFileIsNoAnswer) {
    server.ServeForever(kPath);
    ExpectMessage(kNoAnswer);
}

TEST_F(UpdateOverHttpTest, RedirectionOutOfTheWebIsNoAnswer) {
    server.Redirect(kPath, "file:///etc/hostname");
    ExpectMessage(kNoAnswer);
    server.Redirect(kPath, "ftp://127.0.0.1/update.txt");
    ExpectMessage(kNoAnswer);
}

}  // namespace
}  // namespace horavex

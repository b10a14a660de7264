#include "linux/signed_get.h"

#include "support/loopback_server.h"
#include "support/scoped_variable.h"

namespace horavex {
namespace {

using testing::ElementsAre;

constexpr const char* kKey = "RWSYJL7wwg5J/an3Pe51YCc2rKnnTXXSdhOcRnU2N3ZOvSx8amcIoLdv";
constexpr const char* kSignature =
    "untrusted comment: signature from minisign secret key\n"
    "RUSYJL7wwg5J/bats13fzDoyMf/"
    "u+Wjz7KamipUH9m86LYDEhx+6JaPXV+vqGKoR97LC0d7aOVVqtA6Tb2xYJEqzSPd7+gNc"
    "IAg=\n"
    "trusted comment: a comment that is signed\n"
    "DddYm+P2RYdn697OJoFi9UUx3dvknW56r7DDhANB711HhWuvewS6/8/9ONYc2A+eapVi8rEVMLAPASDJZqdzCg==\n";

class SignedGetTest : public testing::Test {
protected:
    SignedBody Get(long milliseconds = 60'000) {
        return HttpGetSigned(server.Address() + "/a.txt", kKey, {milliseconds, 64 * 1024});
    }

    void Expect(const std::string& body, bool isSigned) {
        const SignedBody got = Get();
        EXPECT_EQ(StringOf(got.bytes), body);
        EXPECT_EQ(got.isSigned, isSigned);
    }

    ScopedVariable noProxy{"no_proxy", "127.0.0.1"};
    LoopbackServer server;
};

TEST_F(SignedGetTest, SignatureBesideTheFileCounts) {
    server.Serve("/a.txt", "4.2.0\n");
    server.Serve("/a.txt.minisig", kSignature);
    Expect("4.2.0\n", true);
    EXPECT_THAT(server.Requests(), ElementsAre("/a.txt", "/a.txt.minisig"));
}

TEST_F(SignedGetTest, FileWithoutASignatureComesUnsigned) {
    server.Serve("/a.txt", "4.2.0\n");
    Expect("4.2.0\n", false);
}

TEST_F(SignedGetTest, SignatureOfAnotherFileIsNone) {
    server.Serve("/a.txt", "9.9.9\n");
    server.Serve("/a.txt.minisig", kSignature);
    Expect("9.9.9\n", false);
}

TEST_F(SignedGetTest, NothingHasNoSignature) {
    server.Serve("/a.txt", "");
    Expect("", false);
    EXPECT_THAT(server.Requests(), ElementsAre("/a.txt"));
}

TEST_F(SignedGetTest, SignatureThatNeverComesIsWaitedForWithinTheTimeOfBoth) {
    server.Serve("/a.txt", "4.2.0\n");
    server.Keep("/a.txt.minisig");
    const SignedBody got = Get(300);
    EXPECT_EQ(StringOf(got.bytes), "4.2.0\n");
    EXPECT_FALSE(got.isSigned);
}

TEST_F(SignedGetTest, EndlessSignatureIsNone) {
    server.Serve("/a.txt", "4.2.0\n");
    server.ServeForever("/a.txt.minisig");
    Expect("4.2.0\n", false);
}

}  // namespace
}  // namespace horavex

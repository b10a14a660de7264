#include "linux/signed_get.h"

#include "linux/signed_file.h"
#include "support/loopback_server.h"
#include "support/scoped_variable.h"

namespace horavex {
namespace {

using testing::ElementsAre;

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
    server.Serve("/a.txt", kSignedFile);
    server.Serve("/a.txt.minisig", kSignature);
    Expect(kSignedFile, true);
    EXPECT_THAT(server.Requests(), ElementsAre("/a.txt", "/a.txt.minisig"));
}

TEST_F(SignedGetTest, FileWithoutASignatureComesUnsigned) {
    server.Serve("/a.txt", kSignedFile);
    Expect(kSignedFile, false);
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
    server.Serve("/a.txt", kSignedFile);
    server.Keep("/a.txt.minisig");
    const SignedBody got = Get(300);
    EXPECT_EQ(StringOf(got.bytes), kSignedFile);
    EXPECT_FALSE(got.isSigned);
}

TEST_F(SignedGetTest, EndlessSignatureIsNone) {
    server.Serve("/a.txt", kSignedFile);
    server.ServeForever("/a.txt.minisig");
    Expect(kSignedFile, false);
}

}  // namespace
}  // namespace horavex

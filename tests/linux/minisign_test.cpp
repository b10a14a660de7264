#include "linux/minisign.h"

#include <gtest/gtest.h>

#include "linux/signed_file.h"

namespace horavex {
namespace {

constexpr const char* kOtherKey = "RWQ4gHKMfa5P96yA0ma3EDk6/jO7X2m2JQG/ogVGX2/zF0pt1wfM1RBO";
const std::string kFile = kSignedFile;
const std::string kSignatureWithoutAHash =
    "untrusted comment: signature from minisign secret key\n"
    "RWSYJL7wwg5J/WBicHaJoYIkZvEIvkGXcdl3dBdRzhfejqKdba6bg1wIkFcIsWIor9dPsapTA+LE676lDkwSG/"
    "jVoRRSUIKs"
    "FQk=\n"
    "trusted comment: timestamp:1795456354\tfile:update.txt\n"
    "PWFe5hzdM1GQgrmMxPGrMlK7X8Rii7rQow5Re3XFIkYXK9+6NnzNkJffrQ1L863sR0GZap5d7O1b1glFdsmiDg==\n";
const std::string kSignatureOfTheOther =
    "untrusted comment: signature from minisign secret key\n"
    "RUQ4gHKMfa5P95/s28RYgUqNPyYWcdDyhgIKG3/IqbnFsoKb66iGZDNYOCVoZmNEbHsQMlcyM8/"
    "RxCzCrhYZOkXhrRszSrnL"
    "ngU=\n"
    "trusted comment: timestamp:1795456354\tfile:update.txt\thashed\n"
    "Lv/Sw66w/+4Qp3hA9dm9geItH1VQMmEwQdufVU1ey8t7bCG5OK+ZUZZ3x8Oc0TeghZVqcaEvU1i5w1hh8H44BQ==\n";

bool IsSigned(const std::string& file, const std::string& signature) {
    return IsMinisigned(BytesOf(file), signature, kKey);
}

TEST(MinisignTest, SignatureOfTheToolCounts) {
    EXPECT_TRUE(IsSigned(kFile, kSignature));
    EXPECT_TRUE(IsMinisigned(BytesOf(kFile), kSignatureOfTheOther, kOtherKey));
}

TEST(MinisignTest, OtherFileIsNotSigned) {
    EXPECT_FALSE(IsSigned("4.2.1\n", kSignature));
    EXPECT_FALSE(IsSigned("4.2.0", kSignature));
    EXPECT_FALSE(IsSigned("", kSignature));
}

TEST(MinisignTest, SignatureOfAnotherKeyIsNone) {
    EXPECT_FALSE(IsSigned(kFile, kSignatureOfTheOther));
    EXPECT_FALSE(IsMinisigned(BytesOf(kFile), kSignature, kOtherKey));
}

TEST(MinisignTest, SignatureWithoutAHashIsNone) {
    EXPECT_FALSE(IsSigned(kFile, kSignatureWithoutAHash));
}

TEST(MinisignTest, EachSignOfTheSignatureCountsButTheUntrustedComment) {
    const std::size_t free = kSignature.find(": ") + 2;
    const std::size_t end = kSignature.find('\n');
    for (std::size_t at = 0; at < kSignature.size(); ++at) {
        std::string changed = kSignature;
        changed[at] = changed[at] == 'A' ? 'B' : 'A';
        EXPECT_EQ(IsSigned(kFile, changed), at >= free && at < end) << at;
    }
}

TEST(MinisignTest, PartOfASignatureIsNone) {
    for (std::size_t count = 0; count + 1 < kSignature.size(); ++count) {
        EXPECT_FALSE(IsSigned(kFile, kSignature.substr(0, count))) << count;
    }
    EXPECT_TRUE(IsSigned(kFile, kSignature.substr(0, kSignature.size() - 1)));
    EXPECT_FALSE(IsSigned(kFile, kSignature + kSignature));
    EXPECT_FALSE(IsSigned(kFile, kSignature + "\n"));
}

TEST(MinisignTest, WhatIsNoKeySignsNothing) {
    const std::string key = kKey;
    for (const std::string& other :
         {std::string(), std::string("RW"), key.substr(1), key + key, key + "\n",
          "untrusted comment: minisign public key\n" + key, std::string(56, 'A'),
          "RWSZ" + key.substr(4), "RU" + key.substr(2)}) {
        EXPECT_FALSE(IsMinisigned(BytesOf(kFile), kSignature, other)) << other;
    }
}

}  // namespace
}  // namespace horavex

#include "linux/registry_text.h"

#include <malloc.h>

#include "support/document_blocks.h"

#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace horavex {
namespace {

using testing::Optional;

const std::string kKey = "Software\\Horavex\\Settings";

std::string Set(const std::string& text, const std::string& name, const std::string& value) {
    RegistryText registry(text);
    registry.Set(kKey, name, value);
    return registry.Text();
}

TEST(RegistryText, EmptyTextHasNothing) {
    const RegistryText registry("");
    EXPECT_EQ(registry.Text(), "");
    EXPECT_FALSE(registry.HasKey(""));
    EXPECT_EQ(registry.Value(kKey, "Language"), std::nullopt);
}

TEST(RegistryText, FirstValueMakesItsSection) {
    EXPECT_EQ(Set("", "Language", "Arabic"),
              "[Software\\\\Horavex\\\\Settings]\n"
              "Language=Arabic\n");
}

TEST(RegistryText, DefaultValueStandsUnderAnAtSign) {
    const std::string text = Set("", "", "default");
    EXPECT_THAT(text, testing::EndsWith("]\n@=default\n"));
    EXPECT_THAT(RegistryText(text).Value(kKey, ""), Optional(std::string("default")));
    EXPECT_EQ(RegistryText(text).Value(kKey, "@"), std::nullopt);
}

TEST(RegistryText, ValueNamedAtSignIsNotTheDefaultValue) {
    const RegistryText registry(Set(Set("", "@", "at"), "", "default"));
    EXPECT_THAT(registry.Value(kKey, "@"), Optional(std::string("at")));
    EXPECT_THAT(registry.Value(kKey, ""), Optional(std::string("default")));
}

TEST(RegistryText, AnyNameAndValueSurvives) {
    const std::string texts[] = {"a=b", "[x]", "#x",         ";x",     " x ", "\t",      "\\",
                                 "a\\", "\\n", "two\nlines", "\r\n",   "=",   "a\\=b",   "[",
                                 "]",   "@=",  "",           "\\=\\@", "x]y", "\xD8\xA7"};
    for (const std::string& name : texts) {
        for (const std::string& value : texts) {
            RegistryText registry("");
            registry.AddKey(name);
            registry.Set(value, name, value);
            const RegistryText read(registry.Text());
            ASSERT_TRUE(read.HasKey(name));
            ASSERT_THAT(read.Value(value, name), Optional(value)) << name;
        }
    }
}

TEST(RegistryText, HandWrittenFormsAreUnderstood) {
    const RegistryText registry(
        "  [Software\\Horavex\\Settings]  \r\n"
        "\tLanguage  =  Arabic \r\n"
        "Empty =\n"
        "Path=a=b");
    EXPECT_THAT(registry.Value(kKey, "Language"), Optional(std::string("Arabic")));
    EXPECT_THAT(registry.Value(kKey, "Empty"), Optional(std::string()));
    EXPECT_THAT(registry.Value(kKey, "Path"), Optional(std::string("a=b")));
}

TEST(RegistryText, SampleOfTheDocumentIsRead) {
    const RegistryText registry(TextOf(BlockOf("docs/data-formats.md", "ini", "Isha Dep Angle")));
    EXPECT_THAT(registry.Value(kKey, "Isha Dep Angle"), Optional<std::string>("18"));
    EXPECT_THAT(registry.Value(kKey, "Language"), Optional<std::string>("Arabic"));
}

TEST(RegistryText, LetterCaseOfKeysAndNamesIsIgnored) {
    const RegistryText registry("[SOFTWARE\\\\horavex\\\\settings]\nLANGUAGE=Arabic\n");
    EXPECT_TRUE(registry.HasKey(kKey));
    EXPECT_THAT(registry.Value(kKey, "Language"), Optional(std::string("Arabic")));
}

TEST(RegistryText, ValuesOfOtherSectionsAreOthers) {
    const RegistryText registry("[a]\nx=1\n[b]\nx=2\n");
    EXPECT_THAT(registry.Value("a", "x"), Optional(std::string("1")));
    EXPECT_THAT(registry.Value("b", "x"), Optional(std::string("2")));
    EXPECT_EQ(registry.Value("c", "x"), std::nullopt);
}

TEST(RegistryText, FirstOfTwoLinesCounts) {
    RegistryText registry("[a]\nx=1\nX=2\n[b]\n[A]\nx=3\ny=4\n");
    EXPECT_THAT(registry.Value("a", "x"), Optional(std::string("1")));
    EXPECT_THAT(registry.Value("a", "y"), Optional(std::string("4")));
    registry.Set("a", "x", "5");
    EXPECT_THAT(RegistryText(registry.Text()).Value("a", "x"), Optional(std::string("5")));
}

TEST(RegistryText, CommentsAndDamagedLinesDoNotCountAndStayInPlace) {
    const std::string text =
        "above=1\n"
        "# mine=1\n"
        "[Software\\\\Horavex\\\\Settings]\n"
        "; Language=Bengali\n"
        "no equals sign\n"
        "Bad=\xFF\n"
        "Language=English\n";
    const RegistryText registry(text);
    for (const char* name : {"above", "# mine", "; Language", "no equals sign", "Bad"}) {
        EXPECT_EQ(registry.Value(kKey, name), std::nullopt) << name;
    }
    EXPECT_THAT(registry.Value(kKey, "Language"), Optional(std::string("English")));
    std::string changed = text;
    changed.replace(changed.rfind("English"), 7, "Arabic");
    EXPECT_EQ(Set(text, "Language", "Arabic"), changed);
}

TEST(RegistryText, DamagedSectionLineHidesWhatFollows) {
    for (const std::string line : {"[b", "[b\xFF]", "["}) {
        const RegistryText registry("[a]\nx=1\n" + line + "\ny=2\n[a]\nz=3\n");
        EXPECT_EQ(registry.Value("a", "y"), std::nullopt) << line;
        EXPECT_THAT(registry.Value("a", "z"), Optional(std::string("3"))) << line;
    }
}

TEST(RegistryText, NewValueStandsBehindTheLastOfItsSection) {
    RegistryText registry("[a]\nx=1\n\n[b]\nz=3\n");
    registry.Set("a", "y", "2");
    EXPECT_EQ(registry.Text(), "[a]\nx=1\ny=2\n\n[b]\nz=3\n");
}

TEST(RegistryText, NewSectionStandsBehindABlankLine) {
    RegistryText registry("[a]\nx=1");
    registry.AddKey("b");
    registry.AddKey("B");
    EXPECT_EQ(registry.Text(), "[a]\nx=1\n\n[b]\n");
    EXPECT_TRUE(registry.HasKey("b"));
}

TEST(RegistryText, ErasedValueIsGoneWithAllItsLines) {
    RegistryText registry("[a]\nx=1\ny=2\nX=3\n[b]\nx=4\n");
    EXPECT_TRUE(registry.EraseValue("A", "x"));
    EXPECT_EQ(registry.Text(), "[a]\ny=2\n[b]\nx=4\n");
    EXPECT_FALSE(registry.EraseValue("a", "x"));
}

TEST(RegistryText, ErasedKeyIsGoneWithAllItsLines) {
    RegistryText registry("# top\n[a]\nx=1\ndamaged\n[b]\nx=4\n[A]\ny=2\n");
    EXPECT_TRUE(registry.EraseKey("a"));
    EXPECT_EQ(registry.Text(), "# top\n[b]\nx=4\n");
    EXPECT_FALSE(registry.EraseKey("a"));
}

// Bytes that the process has asked for and not given back.
std::size_t BytesInUse() {
#ifdef __SANITIZE_ADDRESS__
    return __sanitizer_get_current_allocated_bytes();  // its allocator is not the library's
#else
    const auto info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
#endif
}

TEST(RegistryText, LongSectionNameIsKeptOnceForAllItsLines) {
    std::string text = "[" + std::string(100'000, 'k') + "]\n";
    for (int n = 0; n < 500; ++n) {
        text += "v" + std::to_string(n) + "=1\n";
    }
    const std::size_t before = BytesInUse();
    const RegistryText registry(text);
    EXPECT_LT(BytesInUse() - before, 2'000'000U);
    EXPECT_EQ(registry.Value(std::string(100'000, 'k'), "v499"), "1");
}

}  // namespace
}  // namespace horavex

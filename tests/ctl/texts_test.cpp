#include "ctl/ctl_json.h"
#include "store/text_entry.h"

namespace horavex {
namespace {

std::string TextOf(const std::string& line, const std::vector<std::string>& more = {}) {
    const Json object = JsonOf(Ctl(), line, more);
    EXPECT_THAT(KeysOf(object), testing::ElementsAre("text"));
    return object["text"];
}

TEST(CtlText, EachColumnHasItsLanguage) {
    EXPECT_EQ(TextOf("text --entry 12 --language 1"), "North");
    EXPECT_EQ(TextOf("text --entry 12 --language 2"), "Nord");
    EXPECT_EQ(TextOf("text --entry 14 --language 3"), "Süd");
    EXPECT_EQ(TextOf("text --entry 12 --language 4"), "شمال");
    EXPECT_EQ(TextOf("text --entry 12 --language 5"), "Norte");
    EXPECT_EQ(TextOf("text --entry 12 --language 6"), "North");
}

TEST(CtlText, LanguageZeroIsTheFirst) {
    EXPECT_EQ(TextOf("text --entry 16 --language 0"), "degrees");
}

TEST(CtlText, LastTextOfTheTableEndsWithTheFile) {
    EXPECT_EQ(TextOf("text --entry 77 --language 6"), "first");
}

TEST(CtlText, EntryBehindTheTableIsEmpty) {
    const std::string behind = std::to_string(kTextEntries + 1);
    EXPECT_EQ(TextOf("text --entry " + behind + " --language 1"), "");
}

TEST(CtlText, EntryWhoseRecordNumberLeavesSixteenBitsIsAFault) {
    const ProgramRun run = Ctl().Run("text --entry 5462 --language 2");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "horavexctl: a number does not fit a 16-bit field\n");
}

TEST(CtlText, TextForPeopleIsTheTextAlone) {
    EXPECT_EQ(Ctl().Run("text --entry 12 --language 1").out, "North\n");
}

TEST(CtlLang, ReadsThePackOfTheGivenLanguage) {
    EXPECT_EQ(TextOf("lang --section other --key 9 --language English"), "Ramadan");
    EXPECT_EQ(TextOf("lang --section other --key 9 --language Arabic"), "رمضان");
}

TEST(CtlLang, SectionAndKeyPassOverLetterCase) {
    EXPECT_EQ(TextOf("lang --section OTHER --key fajr --language English"), "Fajr at");
}

TEST(CtlLang, MissingKeyGivesTheDefault) {
    EXPECT_EQ(TextOf("lang --section other --key 99 --default", {"as it was"}), "as it was");
    EXPECT_EQ(TextOf("lang --section other --key 99"), "");
}

TEST(CtlLang, MissingPackGivesTheDefault) {
    EXPECT_EQ(TextOf("lang --section other --key 9 --language Klingon --default none"), "none");
}

TEST(CtlLang, PackNameNeverLeadsOutOfTheFolder) {
    EXPECT_EQ(TextOf("lang --section a --key b --default none --language ../../secret"), "none");
}

TEST(CtlLang, WithoutALanguageTheStoredOneCounts) {
    const Ctl ctl;
    EXPECT_EQ(JsonOf(ctl, "lang --section other --key 9")["text"], "Ramadan");
    ctl.StoreRegistryValue("Language", "Arabic");
    EXPECT_EQ(JsonOf(ctl, "lang --section other --key 9")["text"], "رمضان");
}

TEST(CtlLang, DefaultThatIsNoUtf8PrintsAsUtf8) {
    EXPECT_EQ(TextOf("lang --section other --key 99 --default", {"caf\xE9"}), "caf\xEF\xBF\xBD");
}

}  // namespace
}  // namespace horavex

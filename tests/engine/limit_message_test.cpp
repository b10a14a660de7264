#include "engine/limit_message.h"

#include "base/fault.h"
#include "engine/angle.h"
#include "engine/sample_year.h"
#include "store/text_table.h"
#include "support/data_folder.h"

namespace horavex {
namespace {

/// Every text tells its own number and column.
struct MessageTest : EngineTest {
    MessageTest() { DataFolder(platform.files).WriteTexts(kTextEntries); }

    /// What all messages open with, and the remedy in pieces behind it.
    static std::string Message(std::int16_t language, TextEntry first, TextEntry second,
                               TextEntry third) {
        const auto text = [language](TextEntry entry) { return TextItem(entry, language); };
        return text(TextEntry::kYearImpossible) + "\r\n\r\n" + text(TextEntry::kPleaseCheck) + " " +
               text(TextEntry::kTimeZone) + "\r\n" + text(first) + " " + text(second) + " " +
               text(third);
    }

    std::string Shown(char message) {
        ShowLimitMessage(message);
        const auto& shown = platform.dialogs.messages.back();
        EXPECT_EQ(shown.title, "");
        EXPECT_EQ(shown.icon, MessageIcon::kNone);
        return shown.text;
    }
};

TEST_F(MessageTest, TwilightMessage) {
    EXPECT_EQ(Shown('A'),
              Message(1, TextEntry::kOrReduce, TextEntry::kDepressionAngleOf, TextEntry::kFajr));
}

TEST_F(MessageTest, DawnMessage) {
    EXPECT_EQ(Shown('B'),
              Message(1, TextEntry::kOrIncrease, TextEntry::kDepressionAngleOf, TextEntry::kFajr));
}

TEST_F(MessageTest, DaylightMessage) {
    EXPECT_EQ(Shown('C'),
              Message(1, TextEntry::kPleaseCheck, TextEntry::kOfDaylightSaving, TextEntry::kDays));
}

TEST_F(MessageTest, SpeaksTheAcceptedLanguage) {
    ActiveSettings.Language = 3;
    Settings.Language = 5;
    EXPECT_EQ(Shown('C'),
              Message(3, TextEntry::kPleaseCheck, TextEntry::kOfDaylightSaving, TextEntry::kDays));
}

TEST_F(MessageTest, UndefinedAngleEndsTheProgram) {
    InstallUndefinedAngleReport();
    ActiveSettings.Language = 2;
    EXPECT_THROW(Atan2Checked(0.0, 0.0), ProcessEnded);
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text, TextItem(TextEntry::kUndefinedAngle, 2) + "\r\n" +
                                                     TextItem(TextEntry::kProgramCloses, 2));
    EXPECT_EQ(platform.dialogs.messages[0].title, "Horavex Prayer Time Software ");
    EXPECT_EQ(platform.dialogs.messages[0].icon, MessageIcon::kCritical);
    SetUndefinedAngleHandler(nullptr);
}

}  // namespace
}  // namespace horavex

#include "engine/limit_message.h"

#include "base/fault.h"
#include "engine/angle.h"
#include "engine/sample_year.h"
#include "engine/undefined_angle.h"
#include "store/data_text.h"

namespace horavex {
namespace {

/// A text table in which every text tells its own number and column: "62:1".
struct MessageTest : EngineTest {
    MessageTest() {
        Bytes texts;
        Bytes index;
        for (int record = 0; record < 77 * 6; ++record) {
            const auto start = static_cast<std::int16_t>(texts.size() + 1);
            index.resize(index.size() + 2);
            PutInt16(index, index.size() - 2, start);
            const std::string text =
                std::to_string(record / 6 + 1) + ":" + std::to_string(record % 6 + 1);
            const Bytes stored = DecodeText(BytesOf(text));
            texts.insert(texts.end(), stored.begin(), stored.end());
        }
        platform.files.WriteWhole("/program/Dat/T.DAT", texts);
        platform.files.WriteWhole("/program/Dat/TI.DAT", index);
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
    EXPECT_EQ(Shown('A'), "62:1\r\n\r\n63:1 49:1\r\n65:1 42:1 6:1");
}

TEST_F(MessageTest, DawnMessage) {
    EXPECT_EQ(Shown('B'), "62:1\r\n\r\n63:1 49:1\r\n64:1 42:1 6:1");
}

TEST_F(MessageTest, DaylightMessage) {
    EXPECT_EQ(Shown('C'), "62:1\r\n\r\n63:1 49:1\r\n63:1 34:1 47:1");
}

TEST_F(MessageTest, SpeaksTheAcceptedLanguage) {
    ActiveSettings.Language = 3;
    Settings.Language = 5;
    EXPECT_EQ(Shown('C'), "62:3\r\n\r\n63:3 49:3\r\n63:3 34:3 47:3");
}

TEST_F(MessageTest, UndefinedAngleEndsTheProgram) {
    InstallUndefinedAngleReport();
    ActiveSettings.Language = 2;
    EXPECT_THROW(Atan2Checked(0.0, 0.0), ProcessEnded);
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text, "29:2\r\n3:2");
    EXPECT_EQ(platform.dialogs.messages[0].title, "Horavex Prayer Time Software ");
    EXPECT_EQ(platform.dialogs.messages[0].icon, MessageIcon::kCritical);
    SetUndefinedAngleHandler(nullptr);
}

}  // namespace
}  // namespace horavex

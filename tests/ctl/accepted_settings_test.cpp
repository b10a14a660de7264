#include <fstream>

#include "ctl/ctl_json.h"
#include "store/settings_record.h"

namespace horavex {
namespace {

constexpr const char* kNoon = "today --at 2026-11-21T12:00:00";
constexpr std::size_t kRow = 324;  // 21 November of a common year

constexpr const char* kAibak = "Aibak, Samangan - Afghanistan";

/// The accepted record of a user in the first city of all, in the zone of its country.
SettingsRecord Aibak() {
    SettingsRecord record;
    record.CityIndex = -32000;
    record.FajrAngle = 19.5;
    record.AsrRatio = 2.0;
    record.TimeZone = 4.5;
    record.QiblaMethod = 1;
    record.Language = 1;
    return record;
}

void Accept(const std::string& folder, const SettingsRecord& record) {
    const SettingsBytes bytes = EncodeSettings(record);
    std::ofstream file(folder + "/Dat/AI.DAT", std::ios::binary);
    file << StringOf(bytes);
}

Json AibakRow(const std::string& method) {
    return JsonOf(Ctl(), "year --latitude 36.26 --longitude 68.02 --year 2026 --zone 4.5 " +
                             method)["times"][kRow];
}

struct AcceptedSettings : testing::Test {
    AcceptedSettings() : folder(ctl.UseFolderCopy()) {}

    Ctl ctl;
    std::string folder;
};

TEST_F(AcceptedSettings, RecordAndStoredIshaAngleCount) {
    Accept(folder, Aibak());
    ctl.StoreRegistryValue("Isha Dep Angle", "17.5");
    const Json day = JsonOf(ctl, kNoon);
    EXPECT_EQ(day["city"], kAibak);
    EXPECT_EQ(day["hours"], AibakRow("--fajr 19.5 --isha 17.5 --asr 2"));
}

TEST_F(AcceptedSettings, StoredIshaAngleMayHaveAComma) {
    Accept(folder, Aibak());
    ctl.StoreRegistryValue("Isha Dep Angle", "17,5");
    EXPECT_EQ(JsonOf(ctl, kNoon)["hours"], AibakRow("--fajr 19.5 --isha 17.5 --asr 2"));
}

TEST_F(AcceptedSettings, WithoutAStoredIshaAngleItIs18) {
    Accept(folder, Aibak());
    EXPECT_EQ(JsonOf(ctl, kNoon)["hours"], AibakRow("--fajr 19.5 --isha 18 --asr 2"));
}

TEST_F(AcceptedSettings, NegativeIshaAngleCountsAsAFirstRun) {
    Accept(folder, Aibak());
    ctl.StoreRegistryValue("Isha Dep Angle", "-1");
    EXPECT_EQ(JsonOf(ctl, kNoon)["hours"], AibakRow("--fajr 19.5 --isha 18 --asr 2"));
}

TEST_F(AcceptedSettings, WorkingRecordDoesNotCount) {
    std::filesystem::remove(folder + "/Dat/Settings.DAT");
    EXPECT_EQ(JsonOf(ctl, kNoon), JsonOf(Ctl(), kNoon));
}

TEST_F(AcceptedSettings, AcceptedDaylightSavingMovesTheDay) {
    SettingsRecord record = Aibak();
    record.DstEnabled = 1;
    record.DstStart = 300;
    record.DstEnd = 91;
    Accept(folder, record);
    EXPECT_EQ(JsonOf(ctl, kNoon)["hours"],
              AibakRow("--fajr 19.5 --isha 18 --asr 2 --dst-start 300 --dst-end 91"));
}

TEST_F(AcceptedSettings, MethodOptionsComeOnTop) {
    Accept(folder, Aibak());
    EXPECT_EQ(JsonOf(ctl, std::string(kNoon) + " --fajr 17 --isha 16 --asr 1")["hours"],
              AibakRow("--fajr 17 --isha 16 --asr 1"));
}

TEST_F(AcceptedSettings, ShadowFactorCountsWithItsFraction) {
    SettingsRecord record = Aibak();
    record.AsrRatio = 1.5;
    Accept(folder, record);
    const double asr = JsonOf(ctl, kNoon)["hours"][3];
    EXPECT_GT(asr, AibakRow("--fajr 19.5 --isha 18 --asr 1")[3].get<double>() + 0.1);
    EXPECT_LT(asr, AibakRow("--fajr 19.5 --isha 18 --asr 2")[3].get<double>() - 0.1);
}

TEST_F(AcceptedSettings, AcceptedLanguageWordsTheQibla) {
    SettingsRecord record = Aibak();
    record.Language = 5;
    Accept(folder, record);
    EXPECT_EQ(JsonOf(ctl, kNoon)["qibla"]["text"],
              "Alquibla: 113 grados, 27 minutos Oeste del Norte");
}

TEST_F(AcceptedSettings, StoredPackNamesMonthAndPrayer) {
    ctl.StoreRegistryValue("Language", "Arabic");
    const Json day = JsonOf(ctl, kNoon);
    EXPECT_EQ(day["hijri"]["monthName"],
              JsonOf(ctl, "lang --section other --key 6 --language Arabic")["text"]);
    EXPECT_EQ(day["next"]["sentence"],
              JsonOf(ctl, "lang --section other --key Zuhr --language Arabic")["text"]
                      .get<std::string>() +
                  " 12:06:28 PM");
}

// A record of zeros: no city index, and a Fajr angle at which dawn is sunrise.
TEST_F(AcceptedSettings, MissingRecordReadsAsZerosAndGivesUp) {
    std::filesystem::remove(folder + "/Dat/AI.DAT");
    const Json day = JsonOf(ctl, kNoon, {}, 1);
    EXPECT_EQ(day["failure"]["message"], "B");
}

TEST_F(AcceptedSettings, RecordOf128BytesIsFine) {
    Accept(folder, Aibak());
    std::ofstream(folder + "/Dat/AI.DAT", std::ios::binary | std::ios::app)
        << std::string(31, '\xFF');
    EXPECT_EQ(JsonOf(ctl, kNoon)["city"], kAibak);
}

TEST_F(AcceptedSettings, UsersFolderStandsInFrontOfTheInstalledOne) {
    ctl.variables.erase("HORAVEX_PROGRAM_FOLDER");
    std::filesystem::create_directories(ctl / "data/horavex/dat");
    std::ofstream(ctl / "data/horavex/dat/ai.dat", std::ios::binary)
        << StringOf(EncodeSettings(Aibak()));
    EXPECT_EQ(JsonOf(ctl, kNoon)["city"], kAibak);
}

}  // namespace
}  // namespace horavex

// Whatever the data files hold, every reader gives a result or a fault, and the check of the
// files tells of whatever makes a reader of sound cities and texts fail.

#include <random>

#include "base/fault.h"
#include "store/city_search.h"
#include "store/city_zones.h"
#include "store/data_check.h"
#include "store/location_files.h"
#include "store/location_text.h"
#include "store/settings_files.h"
#include "store/text_table.h"
#include "support/data_folder_test.h"

namespace horavex {
namespace {

using testing::IsEmpty;
using testing::Not;

class DamagedFilesTest : public DataFolderTest {
protected:
    DamagedFilesTest() { data.WriteSample(); }

    /// Runs a reader; true when it failed with a fault. Anything else thrown fails the test.
    template <typename Reader>
    static bool Fails(Reader reader) {
        try {
            reader();
            return false;
        } catch (const Fault&) {
            return true;
        }
    }

    /// Runs every reader over what the sample holds, and a little beyond; true when any failed.
    static bool AnyReaderFails() {
        CloseLocationFiles();
        bool failed = Fails([] { ListCities(); });
        for (std::int16_t cityIndex = -32000; cityIndex <= -31995; ++cityIndex) {
            CloseLocationFiles();
            failed |= Fails([&] {
                LocationRecord location;
                LookupLocation(cityIndex, location);
                LoadAngleBand(location.City.Latitude);
                Location = location;
            });
        }
        failed |= Fails([] { ShowLocation(Location); });
        for (const TextEntry entry :
             {TextEntry::kPleaseWait, TextEntry::kNorth, TextEntry::kFirst}) {
            failed |= Fails([&] { TextItem(entry, 6); });
        }
        for (std::int16_t cityIndex = -32001; cityIndex <= -31995; ++cityIndex) {
            failed |= Fails([&] { CityZones().Of(cityIndex); });
        }
        failed |= Fails([] { LoadActiveSettings(); });
        return failed;
    }

    static std::vector<std::string> Problems() {
        CheckReport report;
        CheckDataFiles(report);
        return report.problems;
    }

    Bytes Noise(std::size_t length) {
        Bytes noise(length);
        for (std::uint8_t& byte : noise) {
            byte = static_cast<std::uint8_t>(random());
        }
        return noise;
    }

    std::mt19937 random{4101};  // a fixed seed
};

TEST_F(DamagedFilesTest, SoundFilesFailNoReader) {
    EXPECT_FALSE(AnyReaderFails());
    EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(DamagedFilesTest, EveryLengthOfEveryFileGivesAResultOrAFaultThatTheCheckTells) {
    for (const std::string& file : DataFileNames()) {
        const Bytes sound = data.Read(file);
        // Of the long text table, one length of 41; a short one goes through them all below.
        const std::size_t step = sound.size() > 500 ? 41 : 1;
        for (std::size_t length = 0; length < sound.size(); length += step) {
            data.Write(file,
                       Bytes(sound.begin(), sound.begin() + static_cast<std::ptrdiff_t>(length)));
            if (AnyReaderFails()) {
                EXPECT_THAT(Problems(), Not(IsEmpty())) << file << " of " << length << " bytes";
            }
        }
        data.Write(file, sound);
        EXPECT_FALSE(AnyReaderFails()) << file;
    }
}

TEST_F(DamagedFilesTest, EveryLengthOfAShortTextTableGivesTextsOrFaults) {
    data.WriteTexts(3);
    for (const std::string file : {"Dat/T.DAT", "Dat/TI.DAT"}) {
        const Bytes sound = data.Read(file);
        for (std::size_t length = sound.size(); length-- > 0;) {
            data.ShrinkTo(file, length);
            for (std::uint16_t entry = 1; entry <= 3; ++entry) {
                const std::string whole = "text " + std::to_string(entry) + " in 1";
                Fails([&] {
                    EXPECT_TRUE(TextItem(TextEntry{entry}, 1).starts_with(whole) ||
                                whole.starts_with(TextItem(TextEntry{entry}, 1)))
                        << length;
                });
            }
        }
        data.Write(file, sound);
    }
}

TEST_F(DamagedFilesTest, RandomBytesInAnyFileGiveResultsOrFaultsThatTheCheckTells) {
    for (const std::string& file : DataFileNames()) {
        const Bytes sound = data.Read(file);
        for (int run = 0; run < 150; ++run) {
            data.Write(file, Noise(random() % 120));
            if (AnyReaderFails()) {
                EXPECT_THAT(Problems(), Not(IsEmpty())) << file << " of run " << run;
            }
        }
        data.Write(file, sound);
        EXPECT_FALSE(AnyReaderFails()) << file;
    }
}

TEST_F(DamagedFilesTest, SingleChangedBytesGiveResultsOrFaultsThatTheCheckTells) {
    for (int run = 0; run < 800; ++run) {
        const std::string& file = DataFileNames()[random() % DataFileNames().size()];
        const Bytes sound = data.Read(file);
        data.SetByte(file, random() % sound.size(), static_cast<std::uint8_t>(random()));
        if (AnyReaderFails()) {
            EXPECT_THAT(Problems(), Not(IsEmpty())) << file << " of run " << run;
        }
        data.Write(file, sound);
    }
}

TEST_F(DamagedFilesTest, RandomBytesInEveryFileGiveResultsOrFaults) {
    for (int run = 0; run < 500; ++run) {
        for (const std::string& file : DataFileNames()) {
            data.Write(file, Noise(random() % 200));
        }
        data.Write("Dat/RI.DAT", Noise(random() % 20));
        data.Write("Dat/AI.DAT", Noise(random() % 130));
        data.Write("Dat/Settings.DAT", Noise(random() % 130));
        AnyReaderFails();
        EXPECT_THAT(Problems(), Not(IsEmpty())) << run;
    }
}

TEST_F(DamagedFilesTest, OversizedFilesAreReadOrRefusedInTime) {
    for (const std::string& file : DataFileNames()) {
        const Bytes sound = data.Read(file);
        Bytes oversized = sound;
        const Bytes more = Noise(300000);
        oversized.insert(oversized.end(), more.begin(), more.end());
        data.Write(file, oversized);
        if (AnyReaderFails()) {
            EXPECT_THAT(Problems(), Not(IsEmpty())) << file;
        }
        data.Write(file, sound);
    }
}

TEST_F(DamagedFilesTest, CountriesThatAllHoldTheWholeIndexAreRefusedInTime) {
    Bytes countries(std::size_t{32767} * 6);
    for (std::size_t offset = 0; offset < countries.size(); offset += 6) {
        PutInt16(countries, offset + 2, kFirstCityIndex);
        PutInt16(countries, offset + 4, 32767);
    }
    data.Write("Dat/SI.DAt", countries);
    data.Write("Dat/CI.DAT", Bytes(10 * 32767 + 10));
    EXPECT_THROW(ListCities(), BoundsFault);
}

}  // namespace
}  // namespace horavex

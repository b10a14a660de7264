#include "store/city_index.h"

#include "base/fault.h"
#include "store/location_files.h"
#include "support/data_folder_test.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct CityIndexTest : DataFolderTest {
    CityIndexTest() {
        data.WriteSample();
        data.Write("Dat/NI.DAT", MakeCityIndex());
    }

    static std::vector<std::string> Named(const std::string& name) {
        const auto cities = CitiesThatMayBe(name);
        std::vector<std::string> names;
        for (const ListedCity& city : cities.value()) {
            names.emplace_back(city.name);
        }
        return names;
    }
};

TEST_F(CityIndexTest, WholeNamesAreFoundHoweverTheyAreWritten) {
    EXPECT_THAT(Named("Cairo"), ElementsAre("Cairo"));
    EXPECT_THAT(Named(" SAO-PAULO "), ElementsAre("São Paulo"));
    EXPECT_THAT(Named("القاهره"), ElementsAre("Cairo"));
    EXPECT_THAT(Named("Mekka"), ElementsAre("Mecca"));
}

TEST_F(CityIndexTest, PartsOfNamesAreNot) {
    EXPECT_THAT(Named("Cair"), IsEmpty());
    EXPECT_THAT(Named("Paulo"), IsEmpty());
    EXPECT_THAT(Named("Egypt"), IsEmpty());
    EXPECT_THAT(Named(""), IsEmpty());
}

TEST_F(CityIndexTest, CityIsAsTheListOfAllHasIt) {
    const CityList few = CitiesThatMayBe("Mekka").value();
    const CityList all = ListCities();
    const ListedCity& found = few.at(0);
    const ListedCity& listed = all.at(4);
    EXPECT_EQ(found.cityIndex, listed.cityIndex);
    EXPECT_EQ(found.province, "Makkah");
    EXPECT_EQ(found.country, "Saudi Arabia");
    EXPECT_EQ(found.latitude, listed.latitude);
    EXPECT_EQ(found.rank, 3);
    EXPECT_EQ(found.folded, listed.folded);
    EXPECT_EQ(found.otherNames, "مكة,Mekka");
}

TEST_F(CityIndexTest, LookClosesTheLocationFiles) {
    ASSERT_TRUE(CitiesThatMayBe("Cairo"));
    EXPECT_THROW(CityCount(), FileFault);
    EXPECT_THROW(CountryCount(), FileFault);
}

TEST_F(CityIndexTest, CitiesOfOneNameComeInTheOrderOfTheList) {
    data.WriteSample();
    data.WriteCountry("Argentina");
    data.WriteCity("Santa Rosa", -3662, -6428);
    data.WriteOtherNames("");
    data.Write("Dat/NI.DAT", MakeCityIndex());
    const auto cities = CitiesThatMayBe("Santa Rosa").value();
    ASSERT_EQ(cities.size(), 2U);
    EXPECT_EQ(cities[0].country, "Brazil");
    EXPECT_EQ(cities[1].country, "Argentina");
}

TEST_F(CityIndexTest, WithoutTheFileThereIsNoAnswer) {
    data.Remove("Dat/NI.DAT");
    EXPECT_FALSE(CitiesThatMayBe("Cairo"));
}

TEST_F(CityIndexTest, OfOtherLocationFilesThereIsNoAnswer) {
    for (const char* file : {"Dat/SI.DAt", "Dat/CI.DAT", "Dat/C.DAt", "Dat/N.DAT"}) {
        const Bytes former = data.Read(file);
        const std::size_t last = former.size() - 1;
        data.SetByte(file, last, static_cast<std::uint8_t>(former[last] ^ 1U));
        EXPECT_FALSE(CitiesThatMayBe("Cairo")) << file;
        data.Write(file, former);
        EXPECT_TRUE(CitiesThatMayBe("Cairo")) << file;
    }
    data.Remove("Dat/N.DAT");
    EXPECT_FALSE(CitiesThatMayBe("Cairo"));
}

TEST_F(CityIndexTest, LastByteOfALargeFileCounts) {
    Bytes large = data.Read("Dat/C.DAt");
    large.resize(200000);
    data.Write("Dat/C.DAt", large);
    data.Write("Dat/NI.DAT", MakeCityIndex());
    EXPECT_TRUE(CitiesThatMayBe("Cairo"));
    data.SetByte("Dat/C.DAt", large.size() - 1, 1);
    EXPECT_FALSE(CitiesThatMayBe("Cairo"));
}

TEST_F(CityIndexTest, DamagedFileGivesNoAnswer) {
    const Bytes sound = data.Read("Dat/NI.DAT");
    for (std::size_t size = 0; size < sound.size(); ++size) {
        data.Write("Dat/NI.DAT",
                   Bytes(sound.begin(), sound.begin() + static_cast<std::ptrdiff_t>(size)));
        EXPECT_FALSE(CitiesThatMayBe("Cairo")) << size;
    }
    data.Write("Dat/NI.DAT", sound);
    for (std::size_t at = 0; at < sound.size(); ++at) {
        data.SetByte("Dat/NI.DAT", at, static_cast<std::uint8_t>(sound[at] ^ 0x40U));
        EXPECT_FALSE(CitiesThatMayBe("Cairo")) << at;
        data.SetByte("Dat/NI.DAT", at, sound[at]);
    }
}

}  // namespace
}  // namespace horavex

#include "store/location_files.h"

#include "base/fault.h"
#include "store/indexed_file.h"
#include "support/data_folder_test.h"

namespace horavex {
namespace {

using testing::ThrowsMessage;

/// The sample's cities are -32000 Santa Rosa and -31999 São Paulo of Brazil, -31998 Cairo and
/// -31997 Ismailia of Egypt, -31996 Mecca of Saudi Arabia.
class LocationFilesTest : public DataFolderTest {
protected:
    LocationFilesTest() { data.WriteSample(); }

    std::string City(std::int16_t cityIndex) {
        OpenCityFiles();
        const std::string text = ReadCity(cityIndex, city);
        CloseCityFiles();
        return text;
    }

    std::string Country(std::int16_t number) {
        OpenCountryFiles();
        const std::string name = ReadCountry(number, country);
        CloseCountryFiles();
        return name;
    }

    std::int16_t CountryOf(std::int16_t cityIndex) {
        OpenCountryFiles();
        const std::int16_t number = FindCountryOfCity(cityIndex);
        CloseCountryFiles();
        return number;
    }

    CityRecord city;
    CountryRecord country;
};

TEST_F(LocationFilesTest, CountryHasANameAndARangeOfCities) {
    EXPECT_EQ(Country(2), "Egypt");
    EXPECT_EQ(country.Name, "Egypt");
    EXPECT_EQ(country.FirstCity, -31998);
    EXPECT_EQ(country.CityCount, 2);
}

TEST_F(LocationFilesTest, LastCountryTakesItsLengthFromTheFile) {
    EXPECT_EQ(Country(3), "Saudi Arabia");
    data.ShrinkBy("Dat/S.DAT", 7);
    EXPECT_EQ(Country(3), "Saudi");
}

TEST_F(LocationFilesTest, CountryBehindTheLastIsEmpty) {
    EXPECT_EQ(Country(4), "");
    EXPECT_EQ(country.FirstCity, 0);
    EXPECT_EQ(country.CityCount, 0);
    EXPECT_EQ(Country(32767), "");
}

TEST_F(LocationFilesTest, CountryNumberBelowOneIsAFault) {
    EXPECT_THROW(Country(0), BoundsFault);
    EXPECT_THROW(Country(-1), BoundsFault);
}

TEST_F(LocationFilesTest, CityFieldsComeAsTheyAreStored) {
    EXPECT_EQ(City(-31999), "São Paulo, São Paulo");
    EXPECT_EQ(city.Name, "São Paulo");
    EXPECT_EQ(city.Province, "São Paulo");
    EXPECT_EQ(city.Latitude, -2355);
    EXPECT_EQ(city.Longitude, -4663);
    EXPECT_EQ(city.ProvinceIndex, 2);
}

TEST_F(LocationFilesTest, FirstRecordIsCityMinus32000) {
    EXPECT_EQ(City(-32000), "Santa Rosa, Rio Grande do Sul");
    EXPECT_THROW(City(-32001), BoundsFault);
    EXPECT_THROW(City(-32768), BoundsFault);
}

TEST_F(LocationFilesTest, CityWithoutProvinceShowsItsNameAlone) {
    city.Province = "left over";
    EXPECT_EQ(City(-31998), "Cairo");
    EXPECT_EQ(city.Province, "");
    EXPECT_EQ(city.ProvinceIndex, 0);
}

TEST_F(LocationFilesTest, LastNameTakesItsLengthFromTheFile) {
    EXPECT_EQ(City(-31996), "Mecca, Makkah");
    data.ShrinkBy("Dat/C.DAt", 3);
    EXPECT_EQ(City(-31996), "Me, Makkah");
    data.ShrinkBy("Dat/P.DAT", 4);
    EXPECT_EQ(City(-31996), "Me, Ma");
}

TEST_F(LocationFilesTest, CityBehindTheLastIsEmpty) {
    EXPECT_EQ(City(-31995), "");
    EXPECT_EQ(city.Latitude, 0);
    EXPECT_EQ(City(32767), "");
}

TEST_F(LocationFilesTest, IndexOfTheLongestFileReachesCity32767) {
    Bytes index(std::size_t{64768} * 10);
    PutInt32(index, index.size() - 10, 1);
    PutInt16(index, index.size() - 6, -9000);
    PutInt16(index, index.size() - 4, 18000);
    data.Write("Dat/CI.DAT", index);
    data.Write("Dat/C.DAt", DecodeText(BytesOf("World's end")));
    EXPECT_EQ(City(32767), "World's end");
    EXPECT_EQ(city.Latitude, -9000);
    EXPECT_EQ(city.Longitude, 18000);
}

TEST_F(LocationFilesTest, CityNamesStandBeyondSixteenBits) {
    data.Write("Dat/C.DAt", DecodeText(BytesOf(std::string(70000, '.') + "Zagreb")));
    data.SetInt32("Dat/CI.DAT", 40, 70001);
    EXPECT_EQ(City(-31996), "Zagreb, Makkah");
}

TEST_F(LocationFilesTest, CountryAndProvinceNamesDoNot) {
    data.SetInt16("Dat/SI.DAt", 12, static_cast<std::int16_t>(0x8001));
    EXPECT_THROW(Country(3), BoundsFault);
    data.SetInt16("Dat/PI.DAT", 4, static_cast<std::int16_t>(0x8001));
    EXPECT_THROW(City(-31996), BoundsFault);
}

TEST_F(LocationFilesTest, NextStartBelowItsOwnIsAFault) {
    data.SetInt32("Dat/CI.DAT", 30, 11);  // Ismailia before Cairo
    EXPECT_THROW(City(-31998), BoundsFault);
}

TEST_F(LocationFilesTest, StoredNameHoldsAnyCode) {
    data.Write("Dat/C.DAt", Bytes{13, 10, 26, 0, 255});
    data.ShrinkTo("Dat/CI.DAT", 10);
    data.SetInt16("Dat/CI.DAT", 8, 0);
    EXPECT_EQ(City(-32000), std::string("Œ‰™\0ÿ", 11));
}

TEST_F(LocationFilesTest, ProvinceOutsideTheIndexIsEmptyOrAFault) {
    data.SetInt16("Dat/CI.DAT", 8, 4);
    EXPECT_EQ(City(-32000), "Santa Rosa, ");
    data.SetInt16("Dat/CI.DAT", 8, -1);
    EXPECT_THROW(City(-32000), BoundsFault);
}

TEST_F(LocationFilesTest, CitiesOfEqualProvincesShareOneRecord) {
    data.WriteCity("Jeddah", 2154, 3917, "Makkah");
    EXPECT_EQ(data.Read("Dat/PI.DAT").size(), 6U);
    EXPECT_EQ(City(-31995), "Jeddah, Makkah");
    EXPECT_EQ(city.ProvinceIndex, 3);
}

TEST_F(LocationFilesTest, CityBelongsToTheCountryWhoseRangeHoldsIt) {
    EXPECT_EQ(CountryOf(-32000), 1);
    EXPECT_EQ(CountryOf(-31999), 1);
    EXPECT_EQ(CountryOf(-31998), 2);
    EXPECT_EQ(CountryOf(-31996), 3);
}

TEST_F(LocationFilesTest, CityOfNoCountryGivesTheNumberBehindTheLast) {
    EXPECT_EQ(CountryOf(-32001), 4);
    EXPECT_EQ(CountryOf(-31995), 4);
    EXPECT_EQ(CountryOf(32767), 4);
}

TEST_F(LocationFilesTest, EmptyCountryIndexGivesOne) {
    data.ShrinkTo("Dat/SI.DAt", 0);
    EXPECT_EQ(CountryOf(-32000), 1);
    data.Write("Dat/SI.DAt", Bytes(3));  // half a record rounds to none
    EXPECT_EQ(CountryOf(0), 1);
}

TEST_F(LocationFilesTest, RecordsOfACutCountryIndexAreRounded) {
    data.ShrinkBy("Dat/SI.DAt", 2);  // 16 of 6: the third record counts, but without its CityCount
    EXPECT_EQ(CountryOf(-31996), 4);
    data.ShrinkBy("Dat/SI.DAt", 1);  // 15 of 6: a tie to two
    EXPECT_EQ(CountryOf(-31996), 3);
    EXPECT_EQ(CountryOf(-31997), 2);
    data.ShrinkBy("Dat/SI.DAt", 6);  // 9 of 6: a tie to two again
    EXPECT_EQ(CountryOf(-31998), 3);
    EXPECT_EQ(CountryOf(-31999), 1);
}

TEST_F(LocationFilesTest, RangeMayEndBeyondTheLargestCityIndex) {
    data.SetInt16("Dat/SI.DAt", 14, 32700);
    data.SetInt16("Dat/SI.DAt", 16, 200);
    EXPECT_EQ(CountryOf(32767), 3);
    EXPECT_EQ(CountryOf(32700), 3);
    EXPECT_EQ(CountryOf(32699), 4);
}

TEST_F(LocationFilesTest, NegativeCountHoldsNoCity) {
    data.SetInt16("Dat/SI.DAt", 4, -2);
    EXPECT_EQ(CountryOf(-32000), 4);
}

TEST_F(LocationFilesTest, FirstOfTwoCountriesThatHoldACityWins) {
    data.SetInt16("Dat/SI.DAt", 4, 10);
    EXPECT_EQ(CountryOf(-31998), 1);
}

TEST_F(LocationFilesTest, LookupNamesCityProvinceAndCountry) {
    LocationRecord location;
    EXPECT_EQ(LookupLocation(-31996, location), "Mecca, Makkah - Saudi Arabia");
    EXPECT_EQ(location.Country, "Saudi Arabia");
    EXPECT_EQ(location.City.Name, "Mecca");
    EXPECT_EQ(location.City.Longitude, 3983);
}

TEST_F(LocationFilesTest, LookupWithoutProvinceHasNoComma) {
    LocationRecord location;
    location.City.Province = "left over";
    EXPECT_EQ(LookupLocation(-31997, location), "Ismailia - Egypt");
    EXPECT_EQ(location.City.Province, "");
}

TEST_F(LocationFilesTest, LookupOfNoCityIsTheBareDash) {
    LocationRecord location;
    EXPECT_EQ(LookupLocation(0, location), " - ");
    EXPECT_EQ(location.Country, "");
}

TEST_F(LocationFilesTest, ReadersNeedOpenFiles) {
    EXPECT_THROW(ReadCity(-32000, city), FileFault);
    EXPECT_THROW(ReadCountry(1, country), FileFault);
    EXPECT_THROW(FindCountryOfCity(-32000), FileFault);
    EXPECT_THROW(CountryCount(), FileFault);
    EXPECT_THROW(CityCount(), FileFault);
    city.ProvinceIndex = 1;
    EXPECT_THROW(ReadProvince(city), FileFault);
}

TEST_F(LocationFilesTest, LongListsKeepTheFilesOpen) {
    OpenLocationFiles();
    platform.failingFiles.FailCall(1);
    OpenLocationFiles();  // are open: no call to the system
    EXPECT_EQ(platform.failingFiles.Calls(), 0);
    platform.failingFiles.FailCall(0);
    EXPECT_EQ(ReadCity(-31998, city), "Cairo");
    EXPECT_EQ(ReadCountry(2, country), "Egypt");
    EXPECT_EQ(CountryCount(), 3);
    EXPECT_EQ(CityCount(), 5);
    CloseLocationFiles();
    CloseLocationFiles();
    EXPECT_THROW(ReadCity(-31998, city), FileFault);
    EXPECT_THROW(ReadCountry(2, country), FileFault);
}

TEST_F(LocationFilesTest, CityFilesOpenBeforeCountryFiles) {
    data.Remove("Dat/SI.DAt");
    EXPECT_THROW(OpenLocationFiles(), FileFault);
    EXPECT_EQ(CityCount(), 5);
}

TEST_F(LocationFilesTest, LookupClosesItsFiles) {
    LocationRecord location;
    LookupLocation(-31998, location);
    EXPECT_THAT(CountryCount, ThrowsMessage<FileFault>("Dat: the location files are not open"));
    EXPECT_THROW(CityCount(), FileFault);
}

TEST_F(LocationFilesTest, EveryMissingFileIsAFileFaultThatNamesIt) {
    for (const std::string name : {"SI.DAt", "S.DAT", "CI.DAT", "C.DAt", "PI.DAT", "P.DAT"}) {
        CloseLocationFiles();
        data.WriteSample();
        data.Remove("Dat/" + name);
        LocationRecord location;
        EXPECT_THAT([&] { LookupLocation(-31998, location); },
                    ThrowsMessage<FileFault>(testing::HasSubstr("Dat/" + name)));
    }
}

TEST_F(LocationFilesTest, EveryFailingCallLeavesTheOldPlaceAndTheNextLookupWorks) {
    LocationRecord location;
    LookupLocation(-31998, location);
    platform.failingFiles.FailCall(0);
    LookupLocation(-31996, location);
    const int calls = platform.failingFiles.Calls();
    ASSERT_GT(calls, 10);
    for (int n = 1; n <= calls; ++n) {
        LookupLocation(-31998, location);
        platform.failingFiles.FailCall(n);
        EXPECT_THROW(LookupLocation(-31996, location), FileFault) << n;
        EXPECT_EQ(location.Country, "Egypt") << n;
        EXPECT_EQ(location.City.Name, "Cairo") << n;
        EXPECT_EQ(LookupLocation(-31996, location), "Mecca, Makkah - Saudi Arabia") << n;
    }
}

TEST(MeccaCityIndex, IsTheFixedNumberOfThePlaceWithoutAQibla) {
    EXPECT_EQ(kMeccaCityIndex, 5183);
    EXPECT_EQ(kFirstCityIndex, -32000);
}

TEST_F(LocationFilesTest, FoundPlaceIsTheOneThatIsLookedUp) {
    LocationRecord place;
    std::string text;
    EXPECT_TRUE(FindLocation(-31998, place, text));
    EXPECT_EQ(place.City.Name, "Cairo");
    EXPECT_EQ(text, "Cairo - Egypt");
}

TEST_F(LocationFilesTest, IndexThatNoCityHasIsNotFoundAndChangesNothing) {
    LocationRecord place;
    place.Country = "former";
    std::string text = "former";
    EXPECT_FALSE(FindLocation(-32768, place, text)) << "before the first";
    EXPECT_FALSE(FindLocation(-31995, place, text)) << "behind the last";
    EXPECT_EQ(place.Country, "former");
    EXPECT_EQ(text, "former");
}

}  // namespace
}  // namespace horavex

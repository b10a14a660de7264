#include "store/city_search.h"

#include "base/fault.h"
#include "base/fold.h"
#include "store/location_files.h"
#include "support/data_folder_test.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ListCitiesTest : public DataFolderTest {
protected:
    ListCitiesTest() { data.WriteSample(); }

    static std::vector<std::string> Names() {
        std::vector<std::string> names;
        for (const ListedCity& city : ListCities()) {
            names.emplace_back(city.name);
        }
        return names;
    }
};

TEST_F(ListCitiesTest, CitiesComeInTheOrderOfTheirIndex) {
    EXPECT_THAT(Names(), ElementsAre("Santa Rosa", "São Paulo", "Cairo", "Ismailia", "Mecca"));
}

TEST_F(ListCitiesTest, CityHasWhatASearchNeeds) {
    const CityList cities = ListCities();
    const ListedCity& city = cities.at(1);
    EXPECT_EQ(city.cityIndex, -31999);
    EXPECT_EQ(city.province, "São Paulo");
    EXPECT_EQ(city.country, "Brazil");
    EXPECT_EQ(city.latitude, -2355);
    EXPECT_EQ(city.longitude, -4663);
    EXPECT_EQ(city.rank, 1);
    EXPECT_EQ(city.folded, "sao paulo, sao paulo - brazil");
}

TEST_F(ListCitiesTest, CityWithoutProvinceHasNone) {
    const CityList cities = ListCities();
    const ListedCity& city = cities.at(2);
    EXPECT_EQ(city.province, "");
    EXPECT_EQ(city.folded, "cairo - egypt");
}

TEST_F(ListCitiesTest, RanksAreUnsigned) {
    data.SetInt16("Dat/RI.DAT", 8, static_cast<std::int16_t>(52800));
    EXPECT_EQ(ListCities().at(4).rank, 52800);
}

TEST_F(ListCitiesTest, WithoutRanksEveryRankIsZero) {
    data.Remove("Dat/RI.DAT");
    for (const ListedCity& city : ListCities()) {
        EXPECT_EQ(city.rank, 0);
    }
}

TEST_F(ListCitiesTest, CutRanksLeaveTheLastCitiesWithoutOne) {
    data.ShrinkBy("Dat/RI.DAT", 3);
    EXPECT_EQ(ListCities().at(2).rank, 2);
    EXPECT_EQ(ListCities().at(3).rank, 0);
    EXPECT_EQ(ListCities().at(4).rank, 0);
}

TEST_F(ListCitiesTest, RankBelongsToTheIndexOfItsCity) {
    data.SetInt16("Dat/SI.DAt", 4, 0);  // Brazil's two cities are listed no more
    const auto cities = ListCities();
    ASSERT_THAT(cities, SizeIs(3));
    EXPECT_EQ(cities[0].name, "Cairo");
    EXPECT_EQ(cities[0].rank, 2);
}

TEST_F(ListCitiesTest, EmptyFilesListNothing) {
    data.ShrinkTo("Dat/SI.DAt", 0);
    EXPECT_THAT(ListCities(), IsEmpty());
}

TEST_F(ListCitiesTest, MoreCitiesThanTheIndexHoldsAreAFault) {
    data.SetInt16("Dat/SI.DAt", 16, 2);
    EXPECT_THROW(ListCities(), BoundsFault);
    data.SetInt16("Dat/SI.DAt", 16, 32767);
    EXPECT_THROW(ListCities(), BoundsFault);
}

TEST_F(ListCitiesTest, CityBeyondTheLargestIndexIsAFault) {
    data.SetInt16("Dat/SI.DAt", 14, 32767);
    EXPECT_THAT(Names(), ElementsAre("Santa Rosa", "São Paulo", "Cairo", "Ismailia", ""));
    data.ShrinkBy("Dat/SI.DAt", 6);
    data.SetInt16("Dat/SI.DAt", 8, 32767);
    EXPECT_THROW(ListCities(), OverflowFault);
}

TEST_F(ListCitiesTest, MissingFilesAreFileFaults) {
    data.Remove("Dat/C.DAt");
    EXPECT_THROW(ListCities(), FileFault);
}

TEST_F(ListCitiesTest, CityHasItsOtherNames) {
    EXPECT_EQ(ListCities().at(2).otherNames, "القاهرة,Kairo");
    EXPECT_EQ(ListCities().at(0).otherNames, "");
}

TEST_F(ListCitiesTest, TextsStayWhenTheListIsMoved) {
    CityList first = ListCities();
    const CityList cities = std::move(first);
    EXPECT_EQ(cities.at(1).name, "São Paulo");
    EXPECT_EQ(cities.at(2).otherNames, "القاهرة,Kairo");
}

TEST_F(ListCitiesTest, WithoutTheFileOfOtherNamesThereAreNone) {
    data.Remove("Dat/N.DAT");
    EXPECT_EQ(ListCities().at(2).otherNames, "");
}

TEST_F(ListCitiesTest, DamagedFileOfOtherNamesLeavesTheCitiesTheirOwn) {
    data.WriteOtherNames("x");
    EXPECT_EQ(ListCities().at(2).otherNames, "");
    data.WriteSample();
    data.ShrinkBy("Dat/N.DAT", 1);
    EXPECT_EQ(ListCities().at(2).name, "Cairo");
    EXPECT_EQ(ListCities().at(2).otherNames, "");
}

TEST_F(ListCitiesTest, FilesAreClosedAgain) {
    ListCities();
    EXPECT_THROW(CityCount(), FileFault);
    EXPECT_THROW(CountryCount(), FileFault);
}

/// Cities made by hand: "name, province - country" and a rank.
class SearchCitiesTest : public testing::Test {
protected:
    void Add(const std::string& name, std::uint16_t rank, const std::string& country = "Nowhere",
             const std::string& province = "", const std::string& otherNames = "") {
        TextStore& texts = cities.Texts();
        const std::string display = province.empty() ? name : name + ", " + province;
        cities.Add({0, texts.Keep(name), texts.Keep(province), texts.Keep(country), 0, 0, rank,
                    texts.Keep(FoldForSearch(display + " - " + country)), texts.Keep(otherNames)});
    }

    void AddWithNames(const std::string& name, std::uint16_t rank, const std::string& otherNames) {
        Add(name, rank, "Nowhere", "", otherNames);
    }

    /// The other name by which the first hit was found.
    std::string MatchedName(const std::string& text) const {
        return std::string(SearchCities(cities, text).at(0).otherName);
    }

    std::vector<std::string> Search(const std::string& text) const {
        std::vector<std::string> names;
        for (const CityHit& hit : SearchCities(cities, text)) {
            names.emplace_back(hit.city->name);
        }
        return names;
    }

    CityList cities;
};

TEST_F(SearchCitiesTest, BetterMatchesComeFirstWhateverTheRank) {
    Add("Kansan City", 1);
    Add("Puerto San Carlos", 2);
    Add("Serravalle", 3, "San Marino");
    Add("Lima", 4, "Peru", "San Isidro");
    Add("Santiago", 5);
    Add("San Jose", 6);
    Add("San", 7);
    Add("Cairo", 8);
    EXPECT_THAT(Search("san"), ElementsAre("San", "San Jose", "Santiago", "Puerto San Carlos",
                                           "Serravalle", "Lima", "Kansan City"));
}

TEST_F(SearchCitiesTest, WholeNameMayBeFollowedByProvinceOrCountry) {
    Add("Mecca Hills", 1);
    Add("Mecca", 3, "United States", "California");
    Add("Mecca", 2, "Saudi Arabia");
    EXPECT_THAT(Search("mecca"), ElementsAre("Mecca", "Mecca", "Mecca Hills"));
    EXPECT_EQ(SearchCities(cities, "mecca").at(0).city->country, "Saudi Arabia");
    EXPECT_THAT(Search("mecca, california"), ElementsAre("Mecca"));
    EXPECT_THAT(Search("Mecca - Saudi Arabia"), ElementsAre("Mecca"));
}

TEST_F(SearchCitiesTest, NameAtAWordsEndComesBeforeALongerWord) {
    Add("Yorkton", 1);
    Add("York-under-Hill", 2);
    EXPECT_THAT(Search("york"), ElementsAre("York-under-Hill", "Yorkton"));
}

TEST_F(SearchCitiesTest, LetterBeyondAsciiIsPartOfAWord) {
    Add("SanЖa", 1);
    Add("Жan", 2);
    Add("San Juan", 3);
    EXPECT_THAT(Search("san"), ElementsAre("San Juan", "SanЖa"));
    EXPECT_THAT(Search("an"), ElementsAre("SanЖa", "Жan", "San Juan"));  // no word begins so
}

TEST_F(SearchCitiesTest, WordsBeginningIsFoundBehindAPlainPart) {
    Add("Kansan", 1);
    Add("Kansan San", 2);
    EXPECT_THAT(Search("san"), ElementsAre("Kansan San", "Kansan"));
}

TEST_F(SearchCitiesTest, EqualMatchesComeByPopulationAndThoseWithoutARankLast) {
    Add("Springfield", 0, "A");
    Add("Springfield", 65535, "B");
    Add("Springfield", 7, "C");
    Add("Springfield", 0, "D");
    Add("Springfield", 1, "E");
    std::string countries;
    for (const CityHit& hit : SearchCities(cities, "springfield")) {
        countries += hit.city->country;
    }
    EXPECT_EQ(countries, "ECBAD");  // equal ranks in the order of the list
}

TEST_F(SearchCitiesTest, CaseAndAccentsDoNotMatter) {
    Add("São Paulo", 1);
    Add("Köln", 2);
    EXPECT_THAT(Search("SAO PAULO"), ElementsAre("São Paulo"));
    EXPECT_THAT(Search("são paulo"), ElementsAre("São Paulo"));
    EXPECT_THAT(Search("KOLN"), ElementsAre("Köln"));
}

TEST_F(SearchCitiesTest, BlanksAroundTheTextDoNotMatter) {
    Add("Cairo", 1);
    EXPECT_THAT(Search("  cairo\t"), ElementsAre("Cairo"));
}

TEST_F(SearchCitiesTest, OtherNamesAreFoundInAnyScript) {
    AddWithNames("Cairo", 1, "القاهرة,Kairo,カイロ");
    AddWithNames("Moscow", 2, "Москва,Moskau");
    EXPECT_THAT(Search("القاهره"), ElementsAre("Cairo"));
    EXPECT_THAT(Search("МОСКВА"), ElementsAre("Moscow"));
    EXPECT_THAT(Search("カイロ"), ElementsAre("Cairo"));
    EXPECT_THAT(Search("kaïro"), ElementsAre("Cairo"));
}

TEST_F(SearchCitiesTest, HitSaysWhichOtherNameMatched) {
    AddWithNames("Cairo", 1, "القاهرة,Kairo,Kair");
    EXPECT_EQ(MatchedName("kairo"), "Kairo");
    EXPECT_EQ(MatchedName("القاهرة"), "القاهرة");
    EXPECT_EQ(MatchedName("cairo"), "");
    EXPECT_EQ(MatchedName("cai"), "");
}

TEST_F(SearchCitiesTest, HitShowsTheOtherNameThatMatchedInBrackets) {
    AddWithNames("Cairo", 1, "القاهرة,Kairo");
    EXPECT_EQ(DisplayText(SearchCities(cities, "kai").at(0)), "Cairo - Nowhere (Kairo)");
    EXPECT_EQ(DisplayText(SearchCities(cities, "cai").at(0)), "Cairo - Nowhere");
}

TEST_F(SearchCitiesTest, WholeOtherNameComesBeforeTheBeginningOfOneAndBothInTheirOrder) {
    AddWithNames("Cairo", 1, "Kairoun,Kairos,Kairo,Kaíro");
    EXPECT_EQ(MatchedName("kairo"), "Kairo");
    EXPECT_EQ(MatchedName("kair"), "Kairoun");
}

TEST_F(SearchCitiesTest, WholeOtherNameCountsAsTheOwnOne) {
    Add("Cologne", 7);
    AddWithNames("Köln", 3, "Colonia,Cologne");
    Add("Cologne Springs", 1);
    EXPECT_THAT(Search("cologne"), ElementsAre("Köln", "Cologne", "Cologne Springs"));
}

TEST_F(SearchCitiesTest, WholeOtherNameOfASmallTownComesBehindTheBeginningsOfOwnOnes) {
    AddWithNames("York", 5001, "New York");
    AddWithNames("Jorvik", 0, "New York");
    Add("New York City", 5002);
    Add("New Yorkton", 4);
    EXPECT_THAT(Search("new york"), ElementsAre("New York City", "New Yorkton", "York", "Jorvik"));
    AddWithNames("Nova Iorque", 5000, "New York");
    EXPECT_THAT(Search("new york"),
                ElementsAre("Nova Iorque", "New York City", "New Yorkton", "York", "Jorvik"));
}

TEST_F(SearchCitiesTest, BeginningOfAnotherNameComesBehindThatOfTheOwnOne) {
    AddWithNames("São Paulo", 1, "San Pablo");
    Add("Santiago", 2);
    Add("Puerto San Carlos", 3);
    EXPECT_THAT(Search("san"), ElementsAre("Santiago", "São Paulo", "Puerto San Carlos"));
}

TEST_F(SearchCitiesTest, PartInsideAnotherNameMatchesNothing) {
    AddWithNames("Cairo", 1, "El Qahira,Kairo");
    EXPECT_THAT(Search("qahira"), IsEmpty());
    EXPECT_THAT(Search("airo"), ElementsAre("Cairo"));
    EXPECT_EQ(MatchedName("airo"), "");
}

TEST_F(SearchCitiesTest, HyphensAndApostrophesInOtherNamesDoNotMatter) {
    AddWithNames("Mecca", 1, "Makkah al-Mukarramah,Umm al Qura'");
    EXPECT_THAT(Search("makkah al mukarramah"), ElementsAre("Mecca"));
    EXPECT_THAT(Search("Makkah Al-Mukarramah"), ElementsAre("Mecca"));
    EXPECT_EQ(MatchedName("umm al-qura"), "Umm al Qura'");
}

TEST_F(SearchCitiesTest, TextMayEndWithinWhatALetterFoldsTo) {
    AddWithNames("Strasbourg", 1, "Straßburg,Ærø'\u0301");
    EXPECT_EQ(MatchedName("stras"), "");
    EXPECT_EQ(MatchedName("strassb"), "Straßburg");
    AddWithNames("Basel", 2, "Baß");
    EXPECT_THAT(Search("baß"), ElementsAre("Basel"));
    EXPECT_EQ(MatchedName("bas"), "");
    EXPECT_EQ(MatchedName("aero"), "Ærø'\u0301");
    EXPECT_TRUE(SearchCities(cities, "aero").at(0).isWholeName);
    EXPECT_FALSE(SearchCities(cities, "aer").at(0).isWholeName);
}

TEST_F(SearchCitiesTest, SingleLatinLetterLooksAtOwnNamesAlone) {
    AddWithNames("Cairo", 1, "Kairo,開羅");
    EXPECT_THAT(Search("k"), IsEmpty());
    EXPECT_THAT(Search("ka"), ElementsAre("Cairo"));
    EXPECT_THAT(Search("開"), ElementsAre("Cairo"));
}

TEST_F(SearchCitiesTest, WhatIsNoNameMatchesNoOtherName) {
    AddWithNames("Cairo", 1, "Kairo,Misr");
    EXPECT_THAT(Search("'"), IsEmpty());
    EXPECT_THAT(Search(","), ElementsAre()) << "cities without a province have no comma";
    EXPECT_THAT(Search("kairo,misr"), IsEmpty());
    AddWithNames("Ye", 2, "E,''");
    EXPECT_THAT(Search("e,"), IsEmpty());
}

TEST_F(SearchCitiesTest, EmptyTextMatchesNothing) {
    Add("Cairo", 1);
    EXPECT_THAT(Search(""), IsEmpty());
    EXPECT_THAT(Search(" \t "), IsEmpty());
}

TEST_F(SearchCitiesTest, UnknownTextMatchesNothing) {
    Add("Cairo", 1);
    EXPECT_THAT(Search("Cairos"), IsEmpty());
    EXPECT_THAT(Search("C\xFF"), IsEmpty());
}

}  // namespace
}  // namespace horavex

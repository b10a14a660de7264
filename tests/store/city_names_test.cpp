#include "store/city_names.h"

#include "base/fault.h"
#include "support/data_folder_test.h"

namespace horavex {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::SizeIs;

class CityNamesTest : public DataFolderTest {
protected:
    CityNamesTest() { data.WriteSample(); }

    TextStore texts;
};

TEST_F(CityNamesTest, NamesComeInTheOrderOfTheCities) {
    EXPECT_THAT(ReadOtherNames(5, texts),
                ElementsAre("", "San Pablo", "القاهرة,Kairo", "", "مكة,Mekka"));
}

TEST_F(CityNamesTest, WithoutTheFileNoCityHasAny) {
    data.Remove("Dat/N.DAT");
    EXPECT_THAT(ReadOtherNames(5, texts), testing::AllOf(SizeIs(5), Each("")));
}

TEST_F(CityNamesTest, NamesOfMoreOrFewerCitiesAreAFault) {
    EXPECT_THROW(ReadOtherNames(4, texts), BoundsFault);
    EXPECT_THROW(ReadOtherNames(6, texts), BoundsFault);
}

TEST_F(CityNamesTest, CutNamesAreAFault) {
    data.ShrinkBy("Dat/N.DAT", 1);
    EXPECT_THROW(ReadOtherNames(5, texts), BoundsFault);
}

TEST_F(CityNamesTest, IndexThatNoCityHasIsAFault) {
    EXPECT_EQ(OtherNamesOf(kFirstCityIndex + 4), "مكة,Mekka");
    EXPECT_THROW(OtherNamesOf(kFirstCityIndex + 5), BoundsFault);
    EXPECT_THROW(OtherNamesOf(kFirstCityIndex - 1), BoundsFault);
}

}  // namespace
}  // namespace horavex

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
};

TEST_F(CityNamesTest, NamesComeInTheOrderOfTheCities) {
    EXPECT_THAT(ReadOtherNames(5), ElementsAre("", "San Pablo", "القاهرة,Kairo", "", "مكة,Mekka"));
}

TEST_F(CityNamesTest, WithoutTheFileNoCityHasAny) {
    data.Remove("Dat/N.DAT");
    EXPECT_THAT(ReadOtherNames(5), testing::AllOf(SizeIs(5), Each("")));
}

TEST_F(CityNamesTest, NamesOfMoreOrFewerCitiesAreAFault) {
    EXPECT_THROW(ReadOtherNames(4), BoundsFault);
    EXPECT_THROW(ReadOtherNames(6), BoundsFault);
}

TEST_F(CityNamesTest, CutNamesAreAFault) {
    data.ShrinkBy("Dat/N.DAT", 1);
    EXPECT_THROW(ReadOtherNames(5), BoundsFault);
}

}  // namespace
}  // namespace horavex

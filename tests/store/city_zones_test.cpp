#include "store/city_zones.h"

#include "base/fault.h"
#include "support/data_folder_test.h"

namespace horavex {
namespace {

/// The sample's cities are -32000 to -31996, the third of them Cairo and the last one Mecca.
class CityZonesTest : public DataFolderTest {
protected:
    CityZonesTest() { data.WriteSample(); }
};

TEST_F(CityZonesTest, CityHasTheNameOfItsZone) {
    EXPECT_EQ(CityZones().Of(-32000), "America/Sao_Paulo");
    EXPECT_EQ(CityZones().Of(-31998), "Africa/Cairo");
    EXPECT_EQ(CityZones().Of(-31996), "Asia/Riyadh");
}

TEST_F(CityZonesTest, IndexThatNoCityHasGivesNone) {
    EXPECT_EQ(CityZones().Of(-31995), "");
    EXPECT_EQ(CityZones().Of(-32001), "");
    EXPECT_EQ(CityZones().Of(32767), "");
    EXPECT_EQ(CityZones().Of(-32768), "");
}

TEST_F(CityZonesTest, CityWithoutAZoneGivesNone) {
    data.SetInt16("Dat/ZI.DAT", 4, 0);
    EXPECT_EQ(CityZones().Of(-31998), "");
}

TEST_F(CityZonesTest, MissingFileIsAFault) {
    for (const char* const file : {"Dat/ZI.DAT", "Dat/Z.DAT"}) {
        data.WriteSample();
        data.Remove(file);
        EXPECT_THROW(CityZones(), FileFault) << file;
    }
}

TEST_F(CityZonesTest, ZoneThatNoLineHasIsAFault) {
    data.SetInt16("Dat/ZI.DAT", 4, 4);
    EXPECT_THROW(CityZones().Of(-31998), BoundsFault);
    data.SetInt16("Dat/ZI.DAT", 4, -1);
    EXPECT_THROW(CityZones().Of(-31998), BoundsFault);
    EXPECT_EQ(CityZones().Of(-31996), "Asia/Riyadh");
}

TEST_F(CityZonesTest, CutIndexLeavesTheLastCityWithoutAZone) {
    data.ShrinkBy("Dat/ZI.DAT", 1);
    EXPECT_EQ(CityZones().Of(-31996), "");
    EXPECT_EQ(CityZones().Of(-31997), "Africa/Cairo");
}

TEST_F(CityZonesTest, CutNamesAreAFault) {
    data.ShrinkBy("Dat/Z.DAT", 1);
    EXPECT_THROW(CityZones(), BoundsFault);
}

TEST_F(CityZonesTest, FileThatCannotBeReadIsAFault) {
    for (const int call : {1, 2}) {
        platform.failingFiles.FailCall(call);
        EXPECT_THROW(CityZones(), FileFault) << call;
    }
}

}  // namespace
}  // namespace horavex

#include "store/angle_band.h"

#include "base/fault.h"
#include "base/program_state.h"
#include "support/data_folder_test.h"

namespace horavex {
namespace {

constexpr AngleLimits kLow = {20, 18, 5};
constexpr AngleLimits kMiddle = {17, 16, 4};
constexpr AngleLimits kHigh = {12, 11, 3};
constexpr AngleLimits kFormer = {9, 8, 7};

class AngleBandTest : public DataFolderTest {
protected:
    AngleBandTest() {
        data.WriteBand(100, kLow);
        data.WriteBand(4500, kMiddle);
        data.WriteBand(5100, kHigh);
        AngleBand = kFormer;
    }

    static AngleLimits BandOf(std::int16_t latitude) {
        LoadAngleBand(latitude);
        return AngleBand;
    }
};

TEST_F(AngleBandTest, BandIsTheLastWhoseLimitLiesBelowTheLatitude) {
    EXPECT_EQ(BandOf(3006), kLow);
    EXPECT_EQ(BandOf(4700), kMiddle);
    EXPECT_EQ(BandOf(5101), kHigh);
}

TEST_F(AngleBandTest, LatitudeOfExactlyALimitTakesTheBandBelowIt) {
    EXPECT_EQ(BandOf(4500), kLow);
    EXPECT_EQ(BandOf(4501), kMiddle);
    EXPECT_EQ(BandOf(5100), kMiddle);
}

TEST_F(AngleBandTest, BelowTheFirstLimitTheFormerBandStays) {
    EXPECT_EQ(BandOf(0), kFormer);
    EXPECT_EQ(BandOf(100), kFormer);
    EXPECT_EQ(BandOf(101), kLow);
}

TEST_F(AngleBandTest, FreshProcessHasTheRangeOfTheControlsDefinition) {
    ResetProgramState();
    EXPECT_EQ(AngleBand, (AngleLimits{90, 18, 0}));
}

TEST_F(AngleBandTest, BeyondTheLastLimitTheLastBandHolds) {
    EXPECT_EQ(BandOf(9000), kHigh);
    EXPECT_EQ(BandOf(32767), kHigh);
}

TEST_F(AngleBandTest, SouthCountsAsNorth) {
    EXPECT_EQ(BandOf(-4500), kLow);
    EXPECT_EQ(BandOf(-4501), kMiddle);
    EXPECT_EQ(BandOf(-32768), kHigh);
    AngleBand = kFormer;
    EXPECT_EQ(BandOf(-100), kFormer);
}

TEST_F(AngleBandTest, LimitBelowZeroGivesTheEquatorABand) {
    data.SetInt16("Dat/A.dat", 0, -1);
    EXPECT_EQ(BandOf(0), kLow);
}

TEST_F(AngleBandTest, WalkStopsAtTheFirstLimitThatIsNotPassed) {
    data.SetInt16("Dat/A.dat", 5, 6000);  // out of order: the third band is never reached
    EXPECT_EQ(BandOf(5500), kLow);
}

TEST_F(AngleBandTest, AnglesAreCodesUnderTheSubstitution) {
    const Bytes file = data.Read("Dat/A.dat");
    EXPECT_EQ((Bytes{file.begin(), file.begin() + 5}), (Bytes{100, 0, 147, 145, 132}));
}

TEST_F(AngleBandTest, AnyCodeIsAnAngle) {
    data.SetByte("Dat/A.dat", 2, 0);
    data.SetByte("Dat/A.dat", 3, 255);
    data.SetByte("Dat/A.dat", 4, 1);
    EXPECT_EQ(BandOf(3006), (AngleLimits{0, 255, 128}));
}

TEST_F(AngleBandTest, EmptyFileLeavesTheFormerBand) {
    data.ShrinkTo("Dat/A.dat", 0);
    EXPECT_EQ(BandOf(3006), kFormer);
}

TEST_F(AngleBandTest, RowsOfACutFileAreRounded) {
    data.ShrinkBy("Dat/A.dat", 2);  // 13 of 5: three rows, the third without two of its angles
    EXPECT_EQ(BandOf(9000), (AngleLimits{12, 0, 0}));
    data.ShrinkBy("Dat/A.dat", 1);  // 12 of 5: two rows
    EXPECT_EQ(BandOf(9000), kMiddle);
}

TEST_F(AngleBandTest, MissingFileIsAFileFaultAndTheFormerBandStays) {
    data.Remove("Dat/A.dat");
    EXPECT_THROW(LoadAngleBand(3006), FileFault);
    EXPECT_EQ(AngleBand, kFormer);
}

TEST_F(AngleBandTest, EveryCutGivesABandOrLeavesTheFormer) {
    // By the length of the file. A cut limit reads as 0 in its high byte, a cut angle as 0; a row
    // counts from three of its five bytes on.
    const std::vector<AngleLimits> bands = {
        kFormer,    kFormer,     kFormer,                 // no row
        {20, 0, 0}, {20, 18, 0}, kLow,    kLow,    kLow,  // one row
        {17, 0, 0}, {17, 16, 0}, kMiddle, kMiddle, kMiddle, {12, 0, 0}, {12, 11, 0}, kHigh};
    for (std::size_t length = bands.size(); length-- > 0;) {
        AngleBand = kFormer;
        data.ShrinkTo("Dat/A.dat", length);
        EXPECT_EQ(BandOf(9000), bands[length]) << length << " bytes";
    }
}

}  // namespace
}  // namespace horavex

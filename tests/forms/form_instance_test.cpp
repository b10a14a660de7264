#include "forms/form_instance.h"

#include "sample_form.h"

namespace horavex {
namespace {

inline const FormInstance<SampleForm> frmSample;

TEST(FormInstance, IsTheSameFormEachTimeAndUnloadedAtFirst) {
    ResetProgramState();

    EXPECT_EQ(&*frmSample, frmSample.operator->());
    EXPECT_FALSE(frmSample->IsLoaded());
}

TEST(FormInstance, ResetOfTheProgramStateBringsAFreshOne) {
    ResetProgramState();
    frmSample->onLoad = [] { FAIL() << "a handler outlived the reset"; };
    frmSample->lblCity.SetCaption("Cairo");

    ResetProgramState();
    frmSample->Load();

    EXPECT_EQ(frmSample->lblCity.Caption(), "Nowhere");
}

}  // namespace
}  // namespace horavex

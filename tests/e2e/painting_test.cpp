// What the built program paints while nobody sees its face. The toolkit tells each painting.

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "e2e/harness/program_fixture.h"
#include "e2e/harness/wait_until.h"
#include "support/build_folder.h"

namespace horavex {
namespace {

constexpr std::chrono::seconds kSomeTicks{3};

class PaintingTest : public ProgramFixture {
protected:
    PaintingTest() { programVariables["QT_LOGGING_RULES"] = "qt.widgets.painting.info=true"; }

    std::size_t Paintings() const {
        const std::string told = desktop.ErrorsOf("horavex");
        std::size_t count = 0;
        for (std::size_t at = 0; (at = told.find("Flushing", at)) != std::string::npos; ++at) {
            ++count;
        }
        return count;
    }

    void WaitForPainting() const {
        const std::size_t before = Paintings();
        EXPECT_TRUE(WaitUntil("a painting", [&] { return Paintings() > before; }));
    }

    /// Once what was on its way is painted.
    void ExpectNoPainting() const {
        std::this_thread::sleep_for(kSomeTicks);
        const std::size_t before = Paintings();
        std::this_thread::sleep_for(kSomeTicks);
        EXPECT_EQ(Paintings(), before);
    }
};

TEST_F(PaintingTest, MinimisedFaceIsPaintedWhenItComesBackAlone) {
    const ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    WaitForPainting();
    desktop.Use({"xdotool", "windowminimize", face});
    ExpectNoPainting();
    desktop.Use({"xdotool", "windowactivate", face});
    WaitForPainting();
}

TEST_F(PaintingTest, FaceThatAnotherWindowCoversIsPaintedWhenItIsSeenAgainAlone) {
    const ChildProcess program = StartProgram();
    desktop.WaitForWindow(program, kFaceTitle);
    WaitForPainting();
    {
        const ChildProcess cover({BuildPath("bin/bare_window"), "full screen"}, desktop.variables,
                                 desktop / "cover.out", desktop / "cover.err");
        desktop.WaitForWindow(cover, "bare");
        ExpectNoPainting();
    }
    WaitForPainting();
}

}  // namespace
}  // namespace horavex

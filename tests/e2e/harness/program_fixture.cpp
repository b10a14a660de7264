#include "e2e/harness/program_fixture.h"

#include "e2e/harness/wait_until.h"

namespace horavex {

ChildProcess ProgramFixture::StartProgram() {
    const Environment former = desktop.variables;
    clock.InstallIn(desktop.variables);
    desktop.variables.insert(programVariables.begin(), programVariables.end());
    ChildProcess program = desktop.Start("horavex");
    desktop.variables = former;
    return program;
}

void ProgramFixture::LetSecondsPass(int seconds) const {
    for (int second = 0; second < seconds; ++second) {
        const std::string before = desktop.Fingerprint();
        WaitUntil("another picture", [&] { return desktop.Fingerprint() != before; });
    }
}

}  // namespace horavex

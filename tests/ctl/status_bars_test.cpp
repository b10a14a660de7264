// What docs/status-bars.md tells users to write, tried in the programs that read it.

#include <gmock/gmock.h>
#include <poll.h>

#include <fstream>
#include <thread>

#include "base/text.h"
#include "ctl_json.h"
#include "linux/bus/session_broadcast.h"
#include "session_bus.h"
#include "support/build_folder.h"
#include "support/document_blocks.h"
#include "support/pseudo_terminal.h"
#include "support/scoped_variable.h"

namespace horavex {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kLine = "Asr 14:38  0:00";

/// The lines of the document's block in a language.
std::vector<std::string> Snippet(const std::string& language, const std::string& part) {
    return BlockOf("docs/status-bars.md", language, part);
}

/// What stands behind "key" and an equals sign.
std::string ValueIn(const std::vector<std::string>& lines, const std::string& key) {
    for (const std::string& line : lines) {
        const std::size_t equals = line.find('=');
        if (equals != std::string::npos && Trim(line.substr(0, equals)) == key) {
            return std::string(Trim(line.substr(equals + 1)));
        }
    }
    ADD_FAILURE() << "no " << key;
    return {};
}

/// A session in which the program runs, and answers by itself.
struct StatusBars : SessionBus {
    StatusBars() {
        ctl.variables["PATH"] = BuildPath("bin") + ":/usr/bin:/bin";
        ctl.variables["TERM"] = "xterm";
        broadcast.Publish(DayInCairo());
        server = std::jthread([this](const std::stop_token& stop) { Serve(stop); });
    }

    void Serve(const std::stop_token& stop) {
        constexpr int kMilliseconds = 20;
        while (!stop.stop_requested()) {
            pollfd bus{broadcast.Descriptor(), POLLIN, 0};
            poll(&bus, 1, kMilliseconds);
            broadcast.Serve();
        }
    }

    std::string Write(const std::string& name, const std::string& text) const {
        std::ofstream(folder / name) << text;
        return folder / name;
    }

    /// Waits until a program prints something, and ends it.
    std::string AwaitFrom(const std::vector<std::string>& words, const std::string& text) {
        const ChildProcess child(words, ctl.variables, folder / "told", folder / "complaint");
        return WaitUntil(text,
                         [&] {
                             const std::string told = ContentOf(folder / "told");
                             return told.find(text) == told.npos ? std::nullopt
                                                                 : std::optional(told);
                         })
            .value_or("");
    }

    ScopedVariable address{"DBUS_SESSION_BUS_ADDRESS", Address().c_str()};
    SessionBroadcast broadcast{[](const std::function<void()>&) {}};
    std::jthread server;
};

TEST_F(StatusBars, PromptOfBashTellsThePrayer) {
    PseudoTerminal shell("/bin/bash", {"--norc", "--noprofile", "-i"}, ctl.variables);
    shell.Type(Snippet("bash", "PS1").at(0) + "\n");
    shell.ReadTo("Asr 0:00 ");
}

TEST_F(StatusBars, PromptOfZshTellsThePrayer) {
    PseudoTerminal shell("/usr/bin/zsh", {"-f", "-i"}, ctl.variables);
    shell.Type("setopt PROMPT_SUBST\n" + Snippet("zsh", "PROMPT").at(0) + "\n");
    shell.ReadTo("Asr 0:00 ");
}

TEST_F(StatusBars, TmuxShowsTheLine) {
    ctl.variables["TMUX_TMPDIR"] = folder.Path();
    const std::string file = Write("tmux.conf", TextOf(Snippet("tmux", "status-right")));
    {
        PseudoTerminal terminal("/usr/bin/tmux", {"-f", file, "new-session", "cat"}, ctl.variables);
        terminal.ReadTo(kLine);
    }
    RunCommand({"tmux", "kill-server"}, ctl.variables);
}

TEST_F(StatusBars, I3blocksPrintsTheLine) {
    const std::string file = Write("i3blocks.conf", TextOf(Snippet("ini", "interval=persist")));
    EXPECT_THAT(AwaitFrom({"i3blocks", "-c", file}, kLine), HasSubstr("\"full_text\":\"Asr"));
}

TEST_F(StatusBars, ConkyPrintsTheLine) {
    const std::string file = Write(
        "conky.conf",
        "conky.config = { out_to_x = false, out_to_console = true, update_interval = 0.1 }\n" +
            TextOf(Snippet("lua", "conky.text")));
    EXPECT_THAT(AwaitFrom({"conky", "-c", file}, kLine), HasSubstr(kLine));
}

TEST_F(StatusBars, ScriptOfPolybarPrintsTheLine) {
    const auto lines = Snippet("ini", "[module/");
    EXPECT_EQ(ValueIn(lines, "type"), "custom/script");
    EXPECT_EQ(ValueIn(lines, "tail"), "true");
    EXPECT_THAT(AwaitFrom({"/bin/sh", "-c", ValueIn(lines, "exec")}, kLine), StartsWith(kLine));
}

TEST_F(StatusBars, ModuleOfWaybarIsSoundAndPrintsTheLine) {
    const Json module = Json::parse("{" + TextOf(Snippet("json", "exec")) + "}")["custom/horavex"];
    EXPECT_EQ(module["escape"], true);
    EXPECT_THAT(AwaitFrom({"/bin/sh", "-c", module["exec"].get<std::string>()}, kLine),
                StartsWith(kLine));
    EXPECT_EQ(module["on-click"], "horavexctl show");
    EXPECT_EQ(module["on-click-right"], "horavexctl athan stop");
}

}  // namespace
}  // namespace horavex

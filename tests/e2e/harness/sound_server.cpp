#include "e2e/harness/sound_server.h"

#include <cstdlib>
#include <sstream>
#include <stdexcept>

#include "e2e/harness/wait_until.h"

namespace horavex {

namespace {

std::vector<std::string> ServersWords(const std::string& socket) {
    return {"pulseaudio",
            "-n",
            "--daemonize=no",
            "--use-pid-file=no",
            "--exit-idle-time=-1",
            "--disable-shm=yes",
            "--load=module-native-protocol-unix socket=" + socket + " auth-anonymous=1",
            "--load=module-null-sink sink_name=nul rate=44100 norewinds=1"};
}

Environment ServersVariables(const TemporaryFolder& folder) {
    return {
        {"HOME", folder.Path()}, {"PATH", std::getenv("PATH")}, {"XDG_RUNTIME_DIR", folder.Path()}};
}

}  // namespace

SoundServer::SoundServer() : server_(ServersWords(SocketPath()), ServersVariables(folder_)) {
    Environment variables = ServersVariables(folder_);
    InstallIn(variables);
    WaitUntil("a sound server", [&] {
        return RunCommand({"pactl", "info"}, variables).status == 0;
    });
}

std::string SoundServer::Use(const std::vector<std::string>& words) const {
    Environment variables = ServersVariables(folder_);
    InstallIn(variables);
    const ProgramRun run = RunCommand(words, variables);
    if (run.status != 0) {
        throw std::runtime_error(words[0] + " failed: " + run.err);
    }
    return run.out;
}

void SoundServer::AddDevice(const std::string& id, const std::string& name) const {
    Use({"pactl", "load-module", "module-null-sink", "sink_name=" + id, "rate=44100", "norewinds=1",
         "sink_properties=\"device.description='" + name + "'\""});
}

void SoundServer::RemoveDevice(const std::string& id) const {
    std::istringstream lines(Use({"pactl", "list", "short", "modules"}));
    for (std::string line; std::getline(lines, line);) {
        if (line.find("sink_name=" + id + " ") != std::string::npos) {
            Use({"pactl", "unload-module", line.substr(0, line.find('\t'))});
        }
    }
}

void SoundServer::InstallIn(Environment& variables) const {
    variables["PULSE_SERVER"] = "unix:" + SocketPath();
}

}  // namespace horavex

#include <filesystem>
#include <memory>
#include <optional>

#include "config/help_topics.h"
#include "ctl/command.h"
#include "lang/pack_check.h"
#include "store/data_check.h"

namespace horavex {

namespace {

std::string ReportText(const CheckReport& report) {
    std::string text;
    for (const std::string& problem : report.problems) {
        text += problem + "\n";
    }
    return text + std::to_string(report.passed) + " checks passed, " +
           std::to_string(report.problems.size()) + " failed\n";
}

CheckReport Check() {
    CheckReport report;
    CheckDataFiles(report);
    CheckLanguagePacks(report);
    CheckHelp(report);
    return report;
}

/// The same ports with another program folder, as long as the check runs.
CheckReport CheckFolder(Session& session, const std::string& path) {
    const Platform& former = Ports();
    std::error_code error;
    if (!std::filesystem::is_directory(path, error)) {
        RefuseUsage("there is no folder \"" + path + "\"");
    }
    const ProgramFolder folder(session.platform.files, path, path);
    const Platform ports{
        former.clock,     former.eventLoop,   former.files,     folder,
        former.formats,   former.dialogs,     former.registry,  former.instanceGuard,
        former.face,      former.windows,     former.tray,      former.shell,
        former.network,   former.athanFace,   former.audioFile, former.audioPlayer,
        former.zoneRules, former.whereabouts, former.notices,   former.mediaPlayers,
        former.session,   former.almanac,     former.broadcast};
    InstallPlatform(&ports);
    CheckReport report = Check();
    InstallPlatform(&former);
    return report;
}

void Validate(Session& session, const std::optional<std::string>& folder) {
    const CheckReport report = folder ? CheckFolder(session, *folder) : Check();
    if (!report.problems.empty()) {
        session.status = kGaveUp;
    }
    session.Print({{"passed", report.passed},
                   {"failed", report.problems.size()},
                   {"problems", report.problems}},
                  ReportText(report));
}

}  // namespace

void AddValidateCommand(CLI::App& app, Session& session) {
    auto* command = AddCommand(app, session, "validate", "Check the data files and packs");
    auto folder = std::make_shared<std::optional<std::string>>();
    command->add_option("folder", *folder, "A program folder; the program's own without it");
    command->callback([&session, folder] { Validate(session, *folder); });
}

}  // namespace horavex

#include "update/update_check.h"

#include <sstream>

#include "base/fault.h"
#include "base/int16.h"
#include "base/program_state.h"
#include "base/program_version.h"
#include "engine/angle.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "update/connection_probes.h"
#include "update/web_pages.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

/// The scratch file of the check in the program folder: the web server's file as it came, byte for
/// byte. Nothing of it lasts from one run to the next.
std::string updateFilePath;

const ProgramStateReset reset([] { updateFilePath.clear(); });

constexpr const char* kRemotePath = "/update/update.txt";
constexpr const char* kDownload =
    "Please download the latest version of Horavex Prayer Time Software from {address}";
constexpr int kBarFull = 10;

void NameUpdateFile() {
    updateFilePath = "Dat\\update.txt";
}

void DeleteUpdateFile() {
    try {
        if (Ports().programFolder.Exists(updateFilePath)) {
            Ports().programFolder.Delete(updateFilePath);
        }
    } catch (const FileFault&) {
        // A scratch file: what cannot be deleted stays.
    }
}

void Tell(const std::string& text) {
    Ports().dialogs.ShowMessage(text, "", MessageIcon::kNone);
}

void ShowProgress(bool visible) {
    HoravexMainForm->lblInternetConnect.SetVisible(visible);
    HoravexMainForm->ProgressBar1.SetVisible(visible);
}

/// Says what is asked next, moves the bar on, and asks.
template <class Probe>
auto Ask(const char* caption, Probe probe) {
    HoravexMainForm->lblInternetConnect.SetCaption(caption);
    ProgressBar& bar = HoravexMainForm->ProgressBar1;
    bar.SetValue(bar.Value() + 1);
    return probe();
}

struct Connection {
    bool isOnline;
    std::string summary;
};

/// All probes are run for the user to see; one answer and the summary count.
Connection AskProbes() {
    HoravexMainForm->ProgressBar1.SetValue(1);
    Ask("Checking for Lan Connection...", IsLanConnection);
    Ask("Checking for Modem Connection...", IsModemConnection);
    Ask("Checking for Connection Via Proxy...", IsProxyConnection);
    const bool isOnline = Ask("Checking for Any Internet Connection...", IsOnline) != kFalse;
    Ask("Checking if RAS is installed...", IsRasInstalled);
    return {isOnline, Ask("Checking connection type", GetConnectionSummary)};
}

void Fetch() {
    Ports().programFolder.WriteWhole(updateFilePath,
                                     Ports().network.Get(WebServer() + kRemotePath));
}

/// The last line of the scratch file, without its end. An end of line behind it begins no line.
std::string PublishedVersion() {
    std::istringstream file(StringOf(Ports().programFolder.ReadWhole(updateFilePath)));
    std::string last;
    for (std::string line; std::getline(file, line);) {
        last = line;
    }
    if (last.ends_with('\r')) {
        last.pop_back();
    }
    return last;
}

void TellAnswer(const std::string& published) {
    if (published.empty()) {
        Tell(GetLangString("msg", "21", "Please check your internet connection and try again."));
    } else if (published == RunningVersionText()) {
        Tell(GetLangString("msg", "22", "No software update available at this time."));
    } else {
        Tell(GetLangString("msg", "19", "Update Available.") + Crlf +
             WithWebAddress(GetLangString("msg", "20", kDownload)));
    }
}

void TellDifference(const std::string& published) {
    if (!published.empty() && published != RunningVersionText()) {
        Tell("Update Available." + Crlf + WithWebAddress(kDownload));
    }
}

using Step = void (*)();
using Answer = void (*)(const std::string& published);

/// A file that cannot be written or read ends the check where it stands.
void Check(Step prepare, Answer answer) {
    NameUpdateFile();
    ShowProgress(true);
    const Connection connection = AskProbes();
    HoravexMainForm->lblInternetConnect.SetCaption(connection.summary);
    HoravexMainForm->ProgressBar1.SetValue(kBarFull);
    if (connection.isOnline) {
        prepare();
        Fetch();
        answer(PublishedVersion());
    } else {
        Tell(connection.summary);
    }
    ShowProgress(false);
}

}  // namespace

void ClearUpdateFile() {
    NameUpdateFile();
    DeleteUpdateFile();
}

void CheckForUpdate() {
    Check(DeleteUpdateFile, TellAnswer);
}

void CheckForUpdateSilently() {
    Check([] {}, TellDifference);
}

void UpdateCheckTimer_Timer() {
    HoravexMainForm->UpdateCheckTimer.SetEnabled(false);
    CheckForUpdateSilently();
}

void Update() {
    CheckForUpdate();
}

void BindUpdateCheck() {
    HoravexMainForm->VisitWebSiteLabel.onClick = CheckForUpdate;
    HoravexMainForm->AboutUpdateButton.onClick = AboutUpdateButton_Click;
    HoravexMainForm->UpdateCheckTimer.onTimer = UpdateCheckTimer_Timer;
}

}  // namespace horavex

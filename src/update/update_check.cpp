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
constexpr const char* kSigned = "The answer of the server is signed.";
constexpr const char* kUnsigned = "The answer of the server is not signed and may be false.";
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

/// Puts the web server's file into the scratch file. True if its signature counts, which nobody
/// looks for where there is no key.
bool Fetch(const std::string& key) {
    const std::string address = WebServer() + kRemotePath;
    Network& network = Ports().network;
    const SignedBody body =
        key.empty() ? SignedBody{network.Get(address), false} : network.GetSigned(address, key);
    Ports().programFolder.WriteWhole(updateFilePath, body.bytes);
    return body.isSigned;
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

/// What the web server has answered, and what there is to say about its signature.
struct Published {
    std::string version;
    bool isKeySet;
    bool isSigned;
};

Published AskServer() {
    const std::string key = UpdateKey();
    const bool isSigned = Fetch(key);
    return {PublishedVersion(), !key.empty(), isSigned};
}

/// A message with a line on the signature below it where a key is set.
std::string WithSignature(const std::string& message, const Published& published,
                          std::string (*textOf)(const char* name, const char* text)) {
    if (!published.isKeySet) {
        return message;
    }
    return message + Crlf +
           (published.isSigned ? textOf("SignedAnswer", kSigned)
                               : textOf("UnsignedAnswer", kUnsigned));
}

std::string InThePack(const char* name, const char* text) {
    return GetLangString("desktop", name, text);
}

std::string InEnglish(const char*, const char* text) {
    return text;
}

void TellAnswer(const Published& published) {
    if (published.version.empty()) {
        Tell(GetLangString("msg", "21", "Please check your internet connection and try again."));
    } else if (published.version == RunningVersionText()) {
        Tell(WithSignature(GetLangString("msg", "22", "No software update available at this time."),
                           published, InThePack));
    } else {
        Tell(WithSignature(GetLangString("msg", "19", "Update Available.") + Crlf +
                               WithWebAddress(GetLangString("msg", "20", kDownload)),
                           published, InThePack));
    }
}

void TellDifference(const Published& published) {
    if (!published.version.empty() && published.version != RunningVersionText()) {
        Tell(WithSignature("Update Available." + Crlf + WithWebAddress(kDownload), published,
                           InEnglish));
    }
}

using Step = void (*)();
using Answer = void (*)(const Published& published);

/// A file that cannot be written or read ends the check where it stands.
void Check(Step prepare, Answer answer) {
    NameUpdateFile();
    ShowProgress(true);
    const Connection connection = AskProbes();
    HoravexMainForm->lblInternetConnect.SetCaption(connection.summary);
    HoravexMainForm->ProgressBar1.SetValue(kBarFull);
    if (connection.isOnline) {
        prepare();
        answer(AskServer());
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

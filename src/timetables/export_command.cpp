#include "timetables/export_command.h"

#include "athan/athan_state.h"
#include "base/int16.h"
#include "engine/wait.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "store/settings_record.h"
#include "store/text_table.h"
#include "timetables/text_export.h"
#include "windows/f_message.h"

namespace horavex {

namespace {

constexpr double kShortestExport = 7.0;  // seconds that the window stays to be read

// The type is the user's affair: the same plain text is written whatever is chosen. There is no
// sixth type, so that none is chosen beforehand.
const FileRequest kRequest = {"",
                              "Text Files (*.txt)|*.txt|RichText Files (*.doc)|*.doc|"
                              "All Files (*.*)|*.*|HTML Files|*.html",
                              6};

std::string Text(TextEntry entry) {
    return TextItem(entry, ActiveSettings.Language);
}

/// The path of the file, or none. The window stays loaded, out of sight, for a user who cancels;
/// the next message in it is not to speak of an export.
std::string AskForFile() {
    fMessage->Load();
    const std::string former = fMessage->lblMessage1.Caption();
    fMessage->lblMessage1.SetCaption(Text(TextEntry::kExportingYear) + " " +
                                     Text(TextEntry::kPleaseWait));
    const std::string path = Ports().dialogs.SaveFile(kRequest, ".txt");
    if (path.empty()) {
        fMessage->lblMessage1.SetCaption(former);
    }
    return path;
}

/// The cancel of the progress window shares its flag with the alarm.
bool IsCancelled() {
    return alarmDismissed != kFalse;
}

/// A cancelled export leaves no file of that name, not even the former one.
void DeleteFile(const std::string& path) {
    if (Ports().files.Exists(path)) {
        Ports().files.Delete(path);
    }
}

void WaitUntilRead(double start) {
    const double elapsed = Ports().clock.SteadySeconds() - start;
    WaitSeconds((kShortestExport - elapsed) / kSecondsPerDay);
}

/// In place of the bar, which stands short of its end.
void TellSaved(const std::string& path) {
    fMessage->lblMessage1.SetCaption(GetLangString("desktop", "SavedAs", "Saved as"));
    fMessage->Shape1.SetVisible(false);
    fMessage->cmdFolder.onClick = [folder = path.substr(0, path.find_last_of('/') + 1)] {
        Ports().shell.OpenAddress(folder);
    };
    fMessage->cmdFolder.SetVisible(true);
}

void Export(const std::string& path) {
    const auto file = Ports().files.OpenForWriting(path);
    fMessage->Show();
    const double start = Ports().clock.SteadySeconds();
    WriteTextPages(*file, IsCancelled);
    fMessage->CmdCancel.SetVisible(false);
    if (IsCancelled()) {
        DeleteFile(path);
    } else {
        file->Commit();
        TellSaved(path);
        WaitUntilRead(start);
    }
}

}  // namespace

void mnuExport_Click() {
    const std::string path = AskForFile();
    if (path.empty()) {
        return;
    }
    fMessage->lblMessage2.SetCaption(path);
    fMessage->CmdCancel.SetVisible(true);
    try {
        Export(path);
    } catch (...) {
        fMessage->Unload();  // a progress window that nothing fills any more helps nobody
        throw;
    }
    fMessage->Unload();
}

}  // namespace horavex

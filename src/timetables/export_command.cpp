#include "timetables/export_command.h"

#include "athan/athan_state.h"
#include "base/flag.h"
#include "engine/wait.h"
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

std::string Text(std::uint16_t entry) {
    return TextItem(entry, ActiveSettings.Language);
}

void ShowProgressWindow(const std::string& path) {
    fMessage->lblMessage2.SetCaption(path);
    fMessage->CmdCancel.SetVisible(true);
}

void WaitUntilRead(double start) {
    const double elapsed = Ports().clock.SteadySeconds() - start;
    WaitSeconds((kShortestExport - elapsed) / kSecondsPerDay);
}

}  // namespace

void mnuExport_Click() {
    fMessage->Load();
    fMessage->lblMessage1.SetCaption(Text(26) + " " + Text(1));
    const std::string path = Ports().dialogs.SaveFile(kRequest, ".txt");
    if (path.empty()) {
        return;  // the window stays loaded, out of sight
    }
    ShowProgressWindow(path);
    auto file = Ports().files.OpenForWriting(path);
    fMessage->Show();
    const double start = Ports().clock.SteadySeconds();
    WriteTextPages(*file);
    file.reset();
    fMessage->CmdCancel.SetVisible(false);
    if (alarmDismissed != kFalse) {
        Ports().files.Delete(path);
    } else {
        WaitUntilRead(start);
    }
    fMessage->Unload();
}

}  // namespace horavex

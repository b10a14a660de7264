#include "engine/progress_window.h"

#include "base/fault.h"
#include "forms/inks.h"
#include "platform/platform.h"
#include "windows/f_message.h"

namespace horavex {

void ShowProgressWindow(const std::string& line1, const std::string& line2) {
    fMessage->Load();
    fMessage->lblMessage1.SetCaption(line1);
    fMessage->lblMessage2.SetCaption(line2);
    fMessage->Show();
}

ProgressWindowCloser::~ProgressWindowCloser() {
    RunStep([] { fMessage->Unload(); });
}

void ReportProgress(double percent) {
    Picture& bar = fMessage->picProgress;
    const double right = bar.Width() * percent / 100.0;
    const double bottom = bar.Height();
    bar.drawing = {PolygonStep{
        {{0.0, 0.0}, {right, 0.0}, {right, bottom}, {0.0, bottom}}, ink::kBar, {ink::kBar, 1}}};
    bar.Refresh();
    Ports().eventLoop.Pump();
}

}  // namespace horavex

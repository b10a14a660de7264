#include "terminal/ports/terminal_shell.h"

#include "platform/platform.h"

namespace horavex {

namespace {

std::string PageText(const std::string& path) {
    try {
        return StringOf(ReadWhole(Ports().files, path, kLargestText));
    } catch (const FileFault&) {
        return {};  // as good as empty
    }
}

}  // namespace

void TerminalShell::OpenAddress(const std::string& address) {
    Ports().dialogs.ShowMessage(address, {}, MessageIcon::kInformation);
}

void TerminalShell::ShowHelp(const HelpView& view) {
    if (help_ == nullptr) {
        help_ = std::make_shared<HelpSheet>(view, PageText, [this] { CloseHelp(); });
    } else {
        help_->Turn(view);
    }
    host_.desk.BringUp(help_);
}

void TerminalShell::CloseHelp() {
    if (help_ != nullptr) {
        host_.desk.TakeAway(*help_);
        help_.reset();
    }
}

}  // namespace horavex

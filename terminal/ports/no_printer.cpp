#include "terminal/ports/no_printer.h"

#include "platform/platform.h"

namespace horavex {

void SayNoPrinter() {
    Ports().dialogs.ShowMessage(
        "Nothing is printed from a terminal. Save the month or the year as a web page or as text "
        "(\"Save As\", \"Export\"), and print that file.",
        {}, MessageIcon::kInformation);
}

}  // namespace horavex

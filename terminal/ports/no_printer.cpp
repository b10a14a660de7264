#include "terminal/ports/no_printer.h"

#include "lang/language_pack.h"
#include "platform/platform.h"

namespace horavex {

void SayNoPrinter() {
    Ports().dialogs.ShowMessage(
        GetLangString("terminal", "NoPrinter",
                      "Nothing is printed from a terminal. Save the month or the year as a web "
                      "page or as text, and print that file."),
        {}, MessageIcon::kInformation);
}

}  // namespace horavex

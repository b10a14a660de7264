#include "windows/f_message.h"

namespace horavex {

MessageForm::MessageForm()
    : Form("fMessage", {.caption = "Horavex", .width = 5400, .height = 2100}) {}

MessageForm::~MessageForm() = default;

}  // namespace horavex

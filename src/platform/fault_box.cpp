#include "platform/fault_box.h"

#include "platform/platform.h"

namespace horavex {

namespace {

bool isOpen = false;

struct OpenBox {
    OpenBox() { isOpen = true; }
    ~OpenBox() { isOpen = false; }
};

}  // namespace

void ShowFault(const std::exception& fault) {
    if (isOpen) {
        return;
    }
    const OpenBox open;
    Ports().dialogs.ShowMessage(fault.what(), {}, MessageIcon::kNone);
}

}  // namespace horavex

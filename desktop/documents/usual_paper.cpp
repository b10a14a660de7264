#include "desktop/documents/usual_paper.h"

#include <langinfo.h>

#include <cstdint>

namespace horavex {

QPageSize PaperOfHeight(int height) {
    constexpr int kLetterHeight = 279;
    return QPageSize(height == kLetterHeight ? QPageSize::Letter : QPageSize::A4);
}

QPageSize UsualPaper() {
    // The C library hands the number out in the place of a pointer.
    const char* height = ::nl_langinfo(_NL_PAPER_HEIGHT);
    return PaperOfHeight(static_cast<int>(reinterpret_cast<std::intptr_t>(height)));
}

}  // namespace horavex

#include "desktop/ports/emblem.h"

#include "desktop/look/icons.h"

namespace horavex {

QIcon Emblem() {
    return look::IconOf(QStringLiteral("horavex"));
}

QIcon QuietEmblem() {
    return look::IconOf(QStringLiteral("horavex-quiet"));
}

}  // namespace horavex

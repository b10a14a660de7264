#pragma once

#include <QStringList>
#include <QVariantList>

#include "platform/notices.h"

namespace horavex {

// Keys of the buttons of a notice. A click on the notice itself counts as the second one.
inline constexpr const char* kStopKey = "stop";
inline constexpr const char* kOpenKey = "open";
inline constexpr const char* kClickKey = "default";

/// The arguments of the call that shows a notice, in the place of the one with the number replaced,
/// or of none for 0. abilities: what the service says that it can.
QVariantList NotifyArguments(NoticeKind kind, const Notice& notice, uint replaced,
                             const QStringList& abilities);

}  // namespace horavex

#pragma once

#include <QVariantList>

#include "linux/notice_desk.h"

namespace horavex {

/// The arguments of the call that shows a notice, with the program's picture.
QVariantList NotifyArguments(const NoticeCall& call);

}  // namespace horavex

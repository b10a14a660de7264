#include "desktop/spare_memory.h"

#include <QCoreApplication>
#include <QTimer>

#include "linux/freed_memory.h"

namespace horavex {

namespace {

constexpr int kRestMs = 1500;  // the windows are painted and what they queued is done

}  // namespace

void ReturnMemorySoon() {
    QTimer::singleShot(kRestMs, qApp, [] { ReturnFreedMemory(); });
}

}  // namespace horavex

#include "calendar/umm_al_qura.h"
#include "platform/platform.h"

namespace horavex {

UmmAlQura::UmmAlQura() : UmmAlQura(Ports().programFolder.ReadWhole(kFile)) {}

}  // namespace horavex

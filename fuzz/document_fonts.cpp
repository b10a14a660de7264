// The commands leave to their program how documents are set in type. Here none is.

#include "ctl/document_fonts.h"

namespace horavex {

void TakeDocumentFonts() {}

}  // namespace horavex

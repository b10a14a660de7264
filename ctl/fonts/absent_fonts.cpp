#include "ctl/document_fonts.h"

namespace horavex {

void InstallDocumentFonts() {}

}  // namespace horavex

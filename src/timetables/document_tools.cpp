#include "timetables/document_tools.h"

#include <utility>

#include "base/program_state.h"

namespace horavex {

namespace {

DocumentTools installed;

const ProgramStateReset reset([] { installed = {}; });

}  // namespace

void InstallDocumentTools(DocumentTools tools) {
    installed = std::move(tools);
}

const DocumentTools& InstalledDocumentTools() {
    return installed;
}

}  // namespace horavex

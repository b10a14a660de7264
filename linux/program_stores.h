#pragma once

#include "linux/registry_file.h"
#include "platform/program_folder.h"

namespace horavex {

// What a program of this user on this machine reads and writes.

/// The user's folder in front of the installed one.
ProgramFolder FindProgramFolder(Files& files);

/// The user's values in front of those of the machine, read anew where a file has changed.
RegistryFile FindRegistry(Files& files);

}  // namespace horavex

#pragma once

namespace horavex {

/// Makes an undefined angle end the program: a critical message in the language of the accepted
/// settings, then the end of the process. A front end calls it once at start.
void InstallUndefinedAngleReport();

}  // namespace horavex

#ifndef NUMBERING_TOOLS_CHECK_H
#define NUMBERING_TOOLS_CHECK_H

#include "Options.h"

#include <string>

/// `numbering check`: prints the findings of the configuration check of `directory`, and with
/// --site those of the site file's settings, one per line as "file:line: severity: message" (or as
/// JSON lines), then a summary line on standard error (text with --json too), and returns the exit
/// status (0 clean or notes only, 1 warnings, 2 errors).
int runCheck(const std::string& directory, const Options& options);

#endif

#ifndef NUMBERING_TOOLS_CONVERSIONS_H
#define NUMBERING_TOOLS_CONVERSIONS_H

#include "Options.h"

/// Set while numbers are converted: the tool then says in its own words which number failed, and
/// the library's error line about it shows only with --trace.
extern bool convertingNumbers;

/// Runs a conversion command on the numbers of the command line, or in batch on every line of
/// standard input; returns the exit status (0 all converted, 1 some failed, 2 no installation).
int convertNumbers(const Options& options);

#endif

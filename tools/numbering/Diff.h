#ifndef NUMBERING_TOOLS_DIFF_H
#define NUMBERING_TOOLS_DIFF_H

#include "Options.h"

#include <string>

/// `numbering diff`: converts the numbers of the command line, else of standard input, else of
/// `shippedSample`, by canonical, dial, clid and gsm under the configuration of `oldDirectory` and
/// then of `newDirectory`, and prints each result that differs as "input, command, old result, new
/// result" (tab-separated; with --json an object of input, command, old and new), then a summary on
/// standard error. Returns the exit status (0 nothing
/// differs, 1 something does, 2 an error).
int runDiff(const Options& options, const std::string& oldDirectory, const std::string& newDirectory,
            const std::string& shippedSample);

#endif

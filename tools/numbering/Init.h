#ifndef NUMBERING_TOOLS_INIT_H
#define NUMBERING_TOOLS_INIT_H

#include "Options.h"

/// `numbering init [DIR]`: copies the shipped configuration files into DIR, else into the library's
/// directory, never replacing a file that is there, and says for each file whether it wrote or kept
/// it. Returns the exit status: 0 when every file is in place, 2 when one could not be written.
int runInit(const Options& options);

#endif

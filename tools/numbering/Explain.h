#ifndef NUMBERING_TOOLS_EXPLAIN_H
#define NUMBERING_TOOLS_EXPLAIN_H

#include "Options.h"

/// `numbering explain NUMBER`: every conversion's result for the number and, in plain words or as
/// one JSON object, the decisions behind them. Returns the exit status (0 converted, 1 not, 2 no
/// installation).
int runExplain(const Options& options);

#endif

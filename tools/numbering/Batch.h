#ifndef NUMBERING_TOOLS_BATCH_H
#define NUMBERING_TOOLS_BATCH_H

#include "Conversions.h"
#include "Output.h"

/// The cores this process may run on, at least 1.
int availableCores();

/// Converts every line of standard input with `converter`, in blocks of whole lines shared out to
/// `jobs` threads (none of its own for 1), and writes the results in input order, as one thread
/// converting line by line would write them; returns the numbers that could not be converted.
int convertBatch(const LineConverter& converter, int jobs, Output& output);

#endif

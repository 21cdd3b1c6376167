#ifndef NUMBERING_TOOLS_CONFIGURATIONDIRECTORY_H
#define NUMBERING_TOOLS_CONFIGURATIONDIRECTORY_H

#include "Options.h"

#include <string>

/// `directory` ending in "/", as the library wants a configuration directory.
std::string withSlash(std::string directory);

/// The shipped configuration: beside an installed tool, else in the source tree it was built from.
std::string shippedConfiguration();

/// The directory the conversions and the check read, with a final "/": --config-dir, else the
/// library's own directory when it exists (so that a check of a live exchange checks what the
/// exchange reads), else the shipped configuration, with a note on standard error.
std::string configurationDirectory(const Options& options);

/// Whether `directory` holds dialing rules, the installation file or its default: without them the
/// library would call every country unsupported.
bool holdsDialingRules(const std::string& directory);

#endif

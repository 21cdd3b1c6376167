#ifndef NUMBERING_TOOLS_INSTALLATION_H
#define NUMBERING_TOOLS_INSTALLATION_H

#include "Options.h"

#include "numbering/KesSiteFile.h"

#include <string>
#include <vector>

/// The installation the command line describes, and what its check found.
struct Installation {
    numbering::KesSiteFile site;
    /// Findings about a setting given as an option name the option ("--ext-prefix") as their file.
    std::vector<numbering::KesConfigurationFinding> findings;
};

/// The site file of --site, else the tool's defaults, each installation option given replacing
/// what they say; checked against the configuration in use. Throws std::runtime_error when the
/// site file cannot be opened.
Installation readInstallation(const Options& options);

#endif

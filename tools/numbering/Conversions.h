#ifndef NUMBERING_TOOLS_CONVERSIONS_H
#define NUMBERING_TOOLS_CONVERSIONS_H

#include "Options.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace numbering {
class KesDialRulesItem;
class KesNumberingRules;
} // namespace numbering

/// Set while numbers are converted: the tool then says in its own words which number failed, and
/// the library's error line about it shows only with --trace.
extern bool convertingNumbers;

/// Whether `text` holds nothing but what the library trims from a number.
bool isBlank(std::string_view text);

/// The installation of --site and the installation options, checked against the configuration
/// loaded; null when it has an error or the site file cannot be opened. Its findings are said on
/// standard error, the warnings only if `warnings`.
std::unique_ptr<numbering::KesDialRulesItem> makeInstallation(const Options& options, bool warnings = true);

/// The result of one conversion in its parts: the number, and the origin (clid) or the country
/// number, area code and subscriber number (decompose); none when the library could not convert it.
using Parts = std::vector<std::string>;

/// One conversion by `command` (canonical, dial, clid, gsm, format, decompose).
Parts convert(const std::string& command, const Options& options, numbering::KesNumberingRules* rules,
              numbering::KesDialRulesItem* installation, const std::string& number);

/// Runs a conversion command on the numbers of the command line, or in batch on every line of
/// standard input; returns the exit status (0 all converted, 1 some failed, 2 no installation).
int convertNumbers(const Options& options);

#endif

#ifndef NUMBERING_TOOLS_CONVERSIONS_H
#define NUMBERING_TOOLS_CONVERSIONS_H

#include "Options.h"
#include "Output.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace numbering {
class KesDialRulesItem;
class KesNumberingRules;
} // namespace numbering

/// Set while numbers are converted: the tool then says in its own words which number failed, and
/// the library's error line about it shows only with --trace.
extern thread_local bool convertingNumbers;

/// Whether `text` holds nothing but what the library trims from a number.
bool isBlank(std::string_view text);

/// The installation of --site and the installation options, checked against the configuration
/// loaded; null when it has an error or the site file cannot be opened. Its findings are said on
/// standard error, the warnings only if `warnings`.
std::unique_ptr<numbering::KesDialRulesItem> makeInstallation(const Options& options, bool warnings = true);

/// The result of one conversion in its parts: the number, and the origin (clid) or the country
/// number, area code and subscriber number (decompose); none when the library could not convert it.
using Parts = std::vector<std::string>;

/// One conversion by `command` (canonical, dial, clid, gsm, format, decompose) into `parts`.
void convert(const std::string& command, const Options& options, numbering::KesNumberingRules* rules,
             numbering::KesDialRulesItem* installation, const std::string& number, Parts& parts);

/// The result lines of numbers converted one after the other, and the tool's message about each
/// number it could not convert, to be said on standard error once the lines before it are out.
struct Converted {
    std::string lines;
    std::vector<std::pair<std::size_t, std::string>> messages; // where in `lines`, and the message
    int failures = 0;
};

/// The conversion command of the options, number by number into result lines. It only reads what
/// it holds, so that the workers of a batch share one.
struct LineConverter {
    const Options& options;
    numbering::KesNumberingRules* rules;
    numbering::KesDialRulesItem* installation;

    /// Appends the result line of `number`: of line `line` of a batch, or of an argument when 0.
    void add(const std::string& number, long line, Converted& into) const;
};

/// Writes the result lines, each message on standard error after the lines before it.
void write(Output& output, const Converted& converted);

/// Runs a conversion command on the numbers of the command line, or in batch on every line of
/// standard input; returns the exit status (0 all converted, 1 some failed, 2 no installation).
int convertNumbers(const Options& options);

#endif

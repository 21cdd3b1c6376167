// `numbering diff`: the library holds one configuration per process, so the sample is converted
// under the old configuration with every result kept, then again under the new one, compared as
// it goes.
#include "Diff.h"

#include "Conversions.h"
#include "JsonLine.h"
#include "Output.h"

#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingRules.h"

#include <array>
#include <fstream>
#include <iostream>
#include <memory>
#include <string_view>
#include <unistd.h>
#include <vector>

using namespace numbering;

namespace {

const std::array<const char*, 4> COMMANDS = {"canonical", "dial", "clid", "gsm"};

/// Every result under one configuration, end to end in one block: a million numbers give four
/// million results, which separate strings would spend much of the run allocating.
class Results {
public:
    void add(const std::string& result) {
        text += result;
        ends.push_back(text.size());
    }
    std::string_view operator[](std::size_t i) const {
        const std::size_t begin = i == 0 ? 0 : ends[i - 1];
        return std::string_view(text).substr(begin, ends[i] - begin);
    }

private:
    std::string text;
    std::vector<std::size_t> ends;
};

/// The non-blank lines of `in`.
std::vector<std::string> numbersIn(std::istream& in) {
    std::vector<std::string> numbers;
    for (std::string line; std::getline(in, line);)
        if (!isBlank(line))
            numbers.push_back(std::move(line));
    return numbers;
}

/// The numbers of the command line, else of standard input (unless a terminal), else of the
/// shipped sample; none when that cannot be read.
std::vector<std::string> sampleNumbers(const Options& options, const std::string& shippedSample) {
    if (!options.numbers.empty())
        return options.numbers;
    std::vector<std::string> numbers;
    if (isatty(STDIN_FILENO) == 0) {
        std::ios::sync_with_stdio(false);
        numbers = numbersIn(std::cin);
    }
    if (numbers.empty()) {
        std::ifstream sample(shippedSample);
        numbers = numbersIn(sample);
    }
    return numbers;
}

/// Converts every number by every command under the configuration of `directory`, in that order,
/// handing each result to `take`; false (said on standard error) when the installation cannot be
/// made there. The installation's warnings are said when `warnings`: once for both configurations.
template <typename Take>
bool convertSample(const std::string& directory, const Options& options, bool warnings,
                   const std::vector<std::string>& numbers, Take take) {
    KesNumberingRules::reload(directory);
    KesNumberingRules* rules = KesNumberingRules::getInstance();
    std::unique_ptr<KesDialRulesItem> installation = makeInstallation(options, warnings);
    if (!installation)
        return false;
    convertingNumbers = true;
    Parts parts;
    for (std::size_t number = 0; number < numbers.size(); ++number)
        for (std::size_t command = 0; command < COMMANDS.size(); ++command) {
            try {
                convert(COMMANDS[command], options, rules, installation.get(), numbers[number], parts);
            } catch (const std::exception&) {
                parts.clear(); // no result, as the conversion commands give none
            }
            // A caller identity is number and origin: one field of the line.
            std::string result = parts.empty() ? std::string() : std::move(parts[0]);
            for (std::size_t part = 1; part < parts.size(); ++part)
                result += ' ' + parts[part];
            take(number, command, result);
        }
    convertingNumbers = false;
    return true;
}

} // namespace

int runDiff(const Options& options, const std::string& oldDirectory, const std::string& newDirectory,
            const std::string& shippedSample) {
    const std::vector<std::string> numbers = sampleNumbers(options, shippedSample);
    if (numbers.empty()) {
        std::cerr << "numbering: no number to compare: none given, and no sample in " << shippedSample
                  << "\n";
        return 2;
    }
    Results before;
    if (!convertSample(oldDirectory, options, true, numbers,
                       [&](std::size_t, std::size_t, const std::string& result) { before.add(result); }))
        return 2;

    Output output;
    std::array<long, COMMANDS.size()> differing{};
    long numbersDiffering = 0;
    std::size_t lastDiffering = numbers.size();
    const bool converted =
        convertSample(newDirectory, options, false, numbers,
                      [&](std::size_t number, std::size_t command, const std::string& after) {
                          const std::string_view old = before[number * COMMANDS.size() + command];
                          if (old == after)
                              return;
                          if (options.json)
                              output.line({JsonLine()
                                               .add("input", numbers[number])
                                               .add("command", COMMANDS[command])
                                               .add("old", std::string(old))
                                               .add("new", after)
                                               .text()});
                          else
                              output.line({numbers[number], COMMANDS[command], old, after});
                          ++differing[command];
                          if (lastDiffering != number)
                              ++numbersDiffering;
                          lastDiffering = number;
                      });
    output.flush();
    KesNumberingRules::resetInstance();
    if (!converted)
        return 2;

    const std::string sampleSize =
        std::to_string(numbers.size()) + (numbers.size() == 1 ? " number" : " numbers");
    if (numbersDiffering == 0) {
        std::cerr << "no result differs: " << sampleSize << ", " << COMMANDS.size() << " commands\n";
        return 0;
    }
    std::cerr << numbersDiffering << " of " << sampleSize
              << (numbersDiffering == 1 ? " converts" : " convert") << " differently:";
    for (std::size_t command = 0; command < COMMANDS.size(); ++command)
        std::cerr << (command == 0 ? " " : ", ") << COMMANDS[command] << " " << differing[command];
    std::cerr << "\n";
    return 1;
}

// The conversion commands: one result line for every number, from the arguments or in batch from
// standard input, and a message of the tool's own for every number that cannot be converted.
#include "Conversions.h"

#include "Batch.h"
#include "Installation.h"
#include "JsonLine.h"
#include "Output.h"

#include "numbering/KesClid.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingRules.h"

#include <cctype>
#include <cstdio>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

using namespace numbering;

thread_local bool convertingNumbers = false;

namespace {

/// What the library trims from both ends of a number.
const char* const BLANKS = " \t\n\v\f\r";

} // namespace

bool isBlank(std::string_view text) {
    return text.find_first_not_of(BLANKS) == std::string_view::npos;
}

std::unique_ptr<KesDialRulesItem> makeInstallation(const Options& options, bool warnings) {
    try {
        const Installation settings = readInstallation(options);
        bool refused = false;
        for (const KesConfigurationFinding& finding : settings.findings) {
            const bool error = finding.severity == KesConfigurationFinding::Severity::Error;
            if (error || warnings)
                std::cerr << "numbering: " << finding.text() << "\n";
            refused = refused || error;
        }
        if (!refused)
            return settings.site.makeDialRulesItem();
    } catch (const std::exception& e) { // a site file that cannot be opened
        std::cerr << "numbering: " << e.what() << "\n";
    }
    return nullptr;
}

void convert(const std::string& command, const Options& options, KesNumberingRules* rules,
             KesDialRulesItem* installation, const std::string& number, Parts& parts) {
    parts.clear(); // keeps its room: a batch makes no new one for every number
    auto one = [&](std::string result) {
        if (!result.empty())
            parts.push_back(std::move(result));
    };
    if (command == "canonical")
        return one(rules->makeCanonicalNumber(installation, number, options.pattern));
    if (command == "dial")
        return one(rules->makePhoneNumber(installation, number));
    if (command == "gsm")
        return one(rules->makeGSMCanonicalNumber(installation, number, false));
    if (command == "format")
        return one(rules->formatCanonicalNumber(number, options.pattern));
    if (command == "decompose") {
        std::string country = rules->extractCountryNumberFromCanonicalNumber(number);
        if (!country.empty())
            parts = {country, rules->extractAreaCodeOrNatPrefixFromCanonicalNumber(number),
                     rules->extractExtensionFromCanonicalNumber(number)};
        return;
    }
    KesClid* clid = rules->makeClid(installation, number);
    if (clid == nullptr)
        return;
    parts = {clid->getNumber(), clid->getOrigin()->name};
    clid->release();
}

namespace {

/// The result line: the parts separated by tabs, behind the input and a tab in batch mode.
void addText(std::string& lines, const std::string* input, const Parts& parts) {
    if (input != nullptr)
        lines.append(*input) += '\t';
    for (std::size_t i = 0; i < parts.size(); ++i)
        (i == 0 ? lines : lines += '\t') += parts[i];
    lines += '\n';
}

/// The result as a JSON line: the parts named after what they are, and why there is none.
void addJson(std::string& lines, const std::string& command, const std::string& input, const Parts& parts,
             const std::string& error) {
    JsonLine line;
    line.add("command", command).add("input", input);
    if (command == "decompose" && parts.size() == 3)
        line.addJson(
            "result",
            JsonLine().add("country", parts[0]).add("area", parts[1]).add("subscriber", parts[2]).text());
    else
        line.add("result", parts.empty() ? std::string() : parts[0]);
    if (command == "clid" && parts.size() == 2)
        line.add("origin", parts[1]);
    if (!error.empty())
        line.add("error", error);
    lines.append(line.text()) += '\n';
}

/// The number between quotes, its control characters shown as "\xNN" so that none reaches the terminal.
std::string quoted(std::string_view number) {
    std::string text = "'";
    for (char c : number) {
        if (std::iscntrl(static_cast<unsigned char>(c))) {
            char escaped[8];
            std::snprintf(escaped, sizeof escaped, "\\x%02x", static_cast<unsigned char>(c));
            text += escaped;
        } else {
            text += c;
        }
    }
    return text + "'";
}

/// Why the library gave no result for `number`, as far as the tool can tell.
std::string whyNotConverted(const Options& options, const std::string& number) {
    if (isBlank(number))
        return "empty number: nothing to convert";
    const std::string allowed = "+0123456789" + KesNumberingRules::TELEPHONENUMBER_FORMAT_CHARACTER +
                                KesNumberingRules::TELEPHONENUMBER_SPECIAL_CHARACTER;
    std::string_view inner = number;
    inner.remove_prefix(inner.find_first_not_of(BLANKS));
    inner.remove_suffix(inner.size() - 1 - inner.find_last_not_of(BLANKS));
    const std::string_view::size_type odd = inner.find_first_not_of(allowed);
    if (odd != std::string_view::npos)
        return quoted(number) + " is not a telephone number: " + quoted(inner.substr(odd, 1)) +
               " is neither a digit nor one of \"+" + KesNumberingRules::TELEPHONENUMBER_FORMAT_CHARACTER +
               KesNumberingRules::TELEPHONENUMBER_SPECIAL_CHARACTER + "\"";
    return quoted(number) + ": no result from the library (" + options.command + ", installation in " +
           options.country + "; --trace shows why)";
}

} // namespace

namespace {

/// Counts a number that could not be converted and, in text, says why once the output before `at`
/// is out; returns why.
std::string refuse(const Options& options, const std::string& number, long line, std::size_t at,
                   Converted& into) {
    ++into.failures;
    std::string error = whyNotConverted(options, number);
    if (!options.json)
        into.messages.emplace_back(
            at, "numbering: " + (line != 0 ? "line " + std::to_string(line) + ": " : "") + error + "\n");
    return error;
}

} // namespace

void LineConverter::add(const std::string& number, long line, Converted& into) const {
    const bool batch = line != 0;
    const std::size_t start = into.lines.size();
    // A batch of canonical or GSM forms in text: the library writes the result into the line.
    const bool appending = options.command == "canonical" || options.command == "gsm";
    if (batch && appending && !options.json && !isBlank(number)) {
        into.lines.append(number) += '\t';
        const std::size_t result = into.lines.size();
        convertingNumbers = true;
        try {
            if (options.command == "canonical")
                rules->appendCanonicalNumber(installation, number, options.pattern, false, into.lines);
            else
                rules->appendGSMCanonicalNumber(installation, number, false, into.lines);
        } catch (const std::exception&) {
            into.lines.resize(result);
        }
        convertingNumbers = false;
        if (into.lines.size() == result)
            refuse(options, number, line, start, into);
        into.lines += '\n';
        return;
    }
    thread_local Parts parts;
    parts.clear();
    std::string error;
    if (!(batch && isBlank(number))) { // a blank line in a batch keeps its place, with no result
        convertingNumbers = true;
        try {
            convert(options.command, options, rules, installation, number, parts);
        } catch (const std::exception&) {
            parts.clear(); // only an empty number gets this far: whyNotConverted says so
        }
        convertingNumbers = false;
        if (parts.empty())
            error = refuse(options, number, line, start, into);
    }
    if (options.json)
        addJson(into.lines, options.command, number, parts, error);
    else
        addText(into.lines, batch ? &number : nullptr, parts);
}

void write(Output& output, const Converted& converted) {
    std::size_t written = 0;
    for (const auto& [at, message] : converted.messages) {
        output.write(std::string_view(converted.lines).substr(written, at - written));
        output.flush();
        std::cerr << message;
        written = at;
    }
    output.write(std::string_view(converted.lines).substr(written));
}

int convertNumbers(const Options& options) {
    KesNumberingRules* rules = KesNumberingRules::getInstance();
    std::unique_ptr<KesDialRulesItem> installation = makeInstallation(options);
    if (!installation)
        return 2;

    Output output;
    const LineConverter converter{options, rules, installation.get()};
    int failures = 0;
    if (options.numbers.empty()) {
        failures = convertBatch(converter, options.jobs > 0 ? options.jobs : availableCores(), output);
    } else {
        Converted converted;
        for (const std::string& number : options.numbers)
            converter.add(number, 0, converted);
        write(output, converted);
        failures = converted.failures;
    }
    output.flush();
    installation.reset();
    KesNumberingRules::resetInstance();
    return failures == 0 ? 0 : 1;
}

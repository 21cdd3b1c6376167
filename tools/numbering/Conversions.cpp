// The conversion commands: one result line for every number, from the arguments or in batch from
// standard input, and a message of the tool's own for every number that cannot be converted.
#include "Conversions.h"

#include "Output.h"

#include "numbering/KesClid.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/KesNumberingRules.h"
#include "numbering/KesUnsupportedCountryException.h"

#include <cctype>
#include <cstdio>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

using namespace numbering;

bool convertingNumbers = false;

namespace {

/// What the library trims from both ends of a number.
const char* const BLANKS = " \t\n\v\f\r";

} // namespace

bool isBlank(std::string_view text) {
    return text.find_first_not_of(BLANKS) == std::string_view::npos;
}

namespace {

/// The installation the options describe; std::invalid_argument with a message for the user.
std::unique_ptr<KesDialRulesItem> installationOf(const Options& options) {
    const std::string& country = options.country;
    const bool letters = country.size() == 2 && std::isalpha(static_cast<unsigned char>(country[0])) &&
                         std::isalpha(static_cast<unsigned char>(country[1]));
    const std::string twoLetters = "the installation's country is an ISO 3166 code of two letters";
    if (!letters)
        throw std::invalid_argument(twoLetters + ", such as FR or DE, not '" + country + "'");
    std::string upper = country;
    for (char& c : upper)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    if (upper != country)
        throw std::invalid_argument("country codes are written in capitals: -c " + upper);
    try {
        return std::make_unique<KesDialRulesItem>(country, options.extPrefix, options.localLength,
                                                  options.areaCodes, options.exceptLength,
                                                  options.exceptBegin);
    } catch (const KesUnsupportedCountryException& e) { // not a std::exception
        throw std::invalid_argument(std::string(e.what()) +
                                    " (configuration: " + KesNumberingConfig::configDirectory() + ")");
    }
}

} // namespace

std::unique_ptr<KesDialRulesItem> makeInstallation(const Options& options) {
    try {
        return installationOf(options);
    } catch (const std::invalid_argument& e) {
        std::cerr << "numbering: " << e.what() << "\n";
        return nullptr;
    }
}

std::string convert(const std::string& command, const Options& options, KesNumberingRules* rules,
                    KesDialRulesItem* installation, const std::string& number) {
    if (command == "canonical")
        return rules->makeCanonicalNumber(installation, number, options.pattern);
    if (command == "dial")
        return rules->makePhoneNumber(installation, number);
    if (command == "gsm")
        return rules->makeGSMCanonicalNumber(installation, number, false);
    if (command == "format")
        return rules->formatCanonicalNumber(number, options.pattern);
    if (command == "decompose") {
        std::string country = rules->extractCountryNumberFromCanonicalNumber(number);
        if (country.empty())
            return std::string();
        return country + "\t" + rules->extractAreaCodeOrNatPrefixFromCanonicalNumber(number) + "\t" +
               rules->extractExtensionFromCanonicalNumber(number);
    }
    KesClid* clid = rules->makeClid(installation, number);
    if (clid == nullptr)
        return std::string();
    std::string presented = clid->getNumber() + "\t" + clid->getOrigin()->name;
    clid->release();
    return presented;
}

namespace {

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

int convertNumbers(const Options& options) {
    KesNumberingRules* rules = KesNumberingRules::getInstance();
    std::unique_ptr<KesDialRulesItem> installation = makeInstallation(options);
    if (!installation)
        return 2;

    Output output;
    int failures = 0;
    long lineNumber = 0;
    const bool batch = options.numbers.empty();
    auto run = [&](const std::string& number) {
        std::string result;
        if (!(batch && isBlank(number))) { // a blank line in a batch keeps its place, with no result
            convertingNumbers = true;
            try {
                result = convert(options.command, options, rules, installation.get(), number);
            } catch (const std::exception&) {
                // only an empty number gets this far: whyNotConverted says so
            }
            convertingNumbers = false;
            if (result.empty()) {
                ++failures;
                output.flush(); // the message follows the results before it
                std::string where = batch ? "line " + std::to_string(lineNumber) + ": " : "";
                std::cerr << "numbering: " << where << whyNotConverted(options, number) << "\n";
            }
        }
        if (batch)
            output.line({number, result});
        else
            output.line({result});
    };
    if (batch) {
        std::ios::sync_with_stdio(false);
        for (std::string line; std::getline(std::cin, line);) {
            ++lineNumber;
            run(line);
        }
    } else {
        for (const std::string& number : options.numbers)
            run(number);
    }
    output.flush();
    installation.reset();
    KesNumberingRules::resetInstance();
    return failures == 0 ? 0 : 1;
}

#include "numbering/KesSiteFile.h"

#include "PropertyFiles.h"
#include "numbering/KesAreaCodePlan.h"
#include "numbering/KesCNPManager.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/KesUnsupportedCountryException.h"

#include <Poco/String.h>

#include <algorithm>
#include <cctype>
#include <climits>
#include <cstdlib>
#include <sstream>
#include <stdexcept>

namespace numbering {

const char* const KesSiteFile::COUNTRY = "country";
const char* const KesSiteFile::EXT_PREFIX = "ext_prefix";
const char* const KesSiteFile::AREA_CODES = "area_codes";
const char* const KesSiteFile::LOCAL_LENGTH = "local_length";
const char* const KesSiteFile::EXCEPT_LENGTH = "except_length";
const char* const KesSiteFile::EXCEPT_BEGIN = "except_begin";

namespace {

using Severity = KesConfigurationFinding::Severity;

/// The first character of `text` that is no decimal digit, or npos.
std::string::size_type firstNonDigit(const std::string& text) {
    return text.find_first_not_of("0123456789");
}

/// The line of each key, as Poco's reader takes keys: blank and comment lines skipped, the key
/// ending at the first '=' or ':'; a later line of a key replaces an earlier one.
std::map<std::string, int> keyLines(const std::string& text) {
    std::map<std::string, int> lines;
    std::istringstream stream(text);
    int number = 0;
    for (std::string line; std::getline(stream, line);) {
        ++number;
        const std::string trimmed = Poco::trim(line);
        if (trimmed.empty() || trimmed[0] == '#' || trimmed[0] == '!')
            continue;
        lines[Poco::trim(trimmed.substr(0, trimmed.find_first_of("=:")))] = number;
    }
    return lines;
}

} // namespace

KesSiteFile KesSiteFile::read(const std::string& path) {
    KesSiteFile site;
    site.file = path;
    std::string text;
    try {
        text = readPropertyFile(path);
    } catch (const Poco::Exception& e) {
        throw std::runtime_error("cannot open the site file " + path + ": " + e.displayText());
    }
    const auto properties = parseProperties(text);
    site.lines = keyLines(text);
    auto finding = [&](const std::string& key, Severity severity, const std::string& message) {
        site.readingFindings.push_back({severity, path, key, site.lines[key], message});
    };
    const char* const known[] = {COUNTRY, LOCAL_LENGTH, EXT_PREFIX, AREA_CODES, EXCEPT_LENGTH, EXCEPT_BEGIN};
    for (const auto& keyLine : site.lines) {
        const std::string& key = keyLine.first; // a structured binding cannot be captured in C++17
        if (std::find_if(std::begin(known), std::end(known), [&](const char* k) { return key == k; }) ==
            std::end(known))
            finding(key, Severity::Warning,
                    "unknown key '" + key +
                        "', ignored: the keys are country, ext_prefix, area_codes, local_length, "
                        "except_length and except_begin");
    }
    site.country = properties->getString(COUNTRY, "");
    site.extPrefix = properties->getString(EXT_PREFIX, "");
    site.areaCodes = properties->getString(AREA_CODES, "");
    site.exceptBegin = properties->getString(EXCEPT_BEGIN, "");
    for (auto [key, length] : {std::make_pair(LOCAL_LENGTH, &site.localLength),
                               std::make_pair(EXCEPT_LENGTH, &site.exceptLength)}) {
        const std::string value = properties->getString(key, "0");
        char* end = nullptr;
        const long number = std::strtol(value.c_str(), &end, 10);
        if (value.empty() || *end != '\0' || number < 0 || number > INT_MAX)
            finding(key, Severity::Error,
                    std::string(key) + " = " + value + " is no whole number from 0 on: it is read as 0");
        else
            *length = static_cast<int>(number);
    }
    return site;
}

std::vector<KesConfigurationFinding> KesSiteFile::check() const {
    // Element by element: a copy of the whole vector would instantiate a standard library function
    // whose name begins with the exported type, and the library's symbol list would export it.
    std::vector<KesConfigurationFinding> findings;
    for (const KesConfigurationFinding& finding : readingFindings)
        findings.push_back(finding);
    checkSettings(findings);
    return findings;
}

void KesSiteFile::checkSettings(std::vector<KesConfigurationFinding>& findings) const {
    auto error = [&](const std::string& key, const std::string& message) {
        const auto line = lines.find(key);
        findings.push_back({Severity::Error, file, key, line == lines.end() ? 0 : line->second, message});
    };
    auto digitsOnly = [&](const std::string& key, const std::string& value, const std::string& what,
                          const std::string& consequence) {
        const auto odd = firstNonDigit(value);
        if (odd != std::string::npos)
            error(key, what + " '" + value + "' holds '" + value.substr(odd, 1) +
                           "', which is no digit: " + consequence);
    };
    digitsOnly(EXT_PREFIX, extPrefix, "the outside-line prefix",
               "the exchange would dial it in front of every outside number");
    digitsOnly(EXCEPT_BEGIN, exceptBegin, "the leading digits of exception numbers",
               "no number the exchange dials begins with them");

    std::vector<std::string> codes;
    std::istringstream list(areaCodes);
    for (std::string code; std::getline(list, code, ',');)
        if (!Poco::trimInPlace(code).empty()) {
            digitsOnly(AREA_CODES, code, "the area code", "no number lies in that area");
            codes.push_back(code);
        }

    const bool letters = country.size() == 2 && std::isalpha(static_cast<unsigned char>(country[0])) &&
                         std::isalpha(static_cast<unsigned char>(country[1]));
    if (!letters) {
        error(COUNTRY,
              "the installation's country is an ISO 3166 code of two letters, such as FR or DE, not '" +
                  country + "'");
        return;
    }
    const std::string upper = Poco::toUpper(country);
    if (upper != country) {
        error(COUNTRY, "country codes are written in capitals: " + upper + ", not " + country);
        return;
    }
    KesNumberingConfig* config = KesNumberingConfig::getInstance();
    if (config == nullptr || !config->validCountryCode(country)) {
        error(COUNTRY, std::string(KesUnsupportedCountryException(country).what()) +
                           " by the dialing rules of " + KesNumberingConfig::configDirectory());
        return;
    }
    // Only a plan that reads area codes knows which exist; the others take any.
    auto* plan = dynamic_cast<KesAreaCodePlan*>(KesCNPManager::getInstance()->getCNP(country));
    if (plan == nullptr || plan->areaCodeCount == 0)
        return;
    for (const std::string& code : codes)
        if (firstNonDigit(code) == std::string::npos && plan->areaCodeTree->extractAreaCode(code) != code)
            error(AREA_CODES, "the area code '" + code + "' is not one the plan of " + country +
                                  " knows: local numbers would be placed in an area that does not exist");
}

std::unique_ptr<KesDialRulesItem> KesSiteFile::makeDialRulesItem() const {
    return std::make_unique<KesDialRulesItem>(country, extPrefix, localLength, areaCodes, exceptLength,
                                              exceptBegin);
}

void KesSiteFile::forget(const std::string& key) {
    lines.erase(key);
    readingFindings.erase(std::remove_if(readingFindings.begin(), readingFindings.end(),
                                         [&](const KesConfigurationFinding& f) { return f.key == key; }),
                          readingFindings.end());
}

} // namespace numbering

#include "numbering/KesCNP_52.h"

#include "PlanText.h"
#include "numbering/KesCNPRegistry.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <algorithm>
#include <typeinfo>

namespace numbering {

Logger* KesCNP_52::logger = Logger::getLogger(typeid(KesCNP_52).name());
std::string KesCNP_52::AREA_CODES_FILE =
    KesNumberingConfig::configFile(KesCNPRegistry::installationFile("52"));
std::string KesCNP_52::AREA_CODES_DEFAULT_FILE =
    KesNumberingConfig::configFile(KesCNPRegistry::defaultFile("52"));

namespace {

const KesAreaCodePlan::PlanFile PLAN_FILE = {"52", "No specific configuration file for Mexico",
                                             "No specific dialing rules configuration file"};

// The forms the Mexican dialing strategy reads back: a mobile keeps the mobile marker "1" in front
// of its area code, and 044/045 are its national mobile prefixes.
const char* const CALLING_CODE = "52";
const std::size_t NATIONAL_LENGTH = 10;
const std::string_view NATIONAL_PREFIX = "01";
const std::string_view MOBILE_MARKER = "1";
const std::string_view MOBILE_PREFIXES[] = {"044", "045"};
const std::string_view TWO_DIGIT_AREA_CODES[] = {"55", "56", "33", "81"};

// Area codes and subscriber numbers begin with 2 to 9: 0 and 1 open prefixes and markers.
bool beginsLikeANumber(std::string_view digits) {
    return !digits.empty() && digits[0] >= '2' && digits[0] <= '9';
}

bool isNationalNumber(std::string_view digits) {
    return digits.size() == NATIONAL_LENGTH && beginsLikeANumber(digits);
}

} // namespace

KesCNP_52::KesCNP_52() : KesAreaCodePlan(PLAN_FILE, logger) {}

KesCNP_52::~KesCNP_52() = default;

bool KesCNP_52::isTwoDigitsAreaCode(std::string number) {
    return std::any_of(std::begin(TWO_DIGIT_AREA_CODES), std::end(TWO_DIGIT_AREA_CODES),
                       [&](std::string_view code) { return startsWith(number, code); });
}

// The area code listed in the plan file wins; otherwise the fixed two-or-three-digit rule.
std::string KesCNP_52::placeNationalNumber(std::string_view marker, std::string_view national) {
    std::size_t areaLength = areaCodeAt(national, logger);
    if (areaLength == 0)
        areaLength = isTwoDigitsAreaCode(std::string(national.substr(0, 2))) ? 2 : 3;
    std::string area(marker);
    area.append(national.substr(0, areaLength));
    return canonical(CALLING_CODE, area, national.substr(areaLength));
}

bool KesCNP_52::place(std::string_view number, KesDialRulesItem* rules, std::string& result) {
    if (number.empty() || !allDigits(number))
        return false;
    for (std::string_view mobilePrefix : MOBILE_PREFIXES)
        if (startsWith(number, mobilePrefix) && isNationalNumber(number.substr(mobilePrefix.size()))) {
            result = placeNationalNumber(MOBILE_MARKER, number.substr(mobilePrefix.size()));
            return true;
        }
    bool withNationalPrefix = startsWith(number, NATIONAL_PREFIX);
    std::string_view rest = withNationalPrefix ? number.substr(NATIONAL_PREFIX.size()) : number;
    if (isNationalNumber(rest)) {
        result = placeNationalNumber("", rest);
        return true;
    }
    // The international mobile form "+52 1 ..." reaches the plan as the mobile marker and the
    // national number, behind the national prefix when the dialing rules give one.
    if (startsWith(rest, MOBILE_MARKER) && isNationalNumber(rest.substr(MOBILE_MARKER.size()))) {
        result = placeNationalNumber(MOBILE_MARKER, rest.substr(MOBILE_MARKER.size()));
        return true;
    }
    // A local number takes the installation's area code only where the two make ten digits.
    if (withNationalPrefix || !beginsLikeANumber(rest) ||
        rules->getAreaCode().size() + rest.size() != NATIONAL_LENGTH)
        return false;
    return completeWithOwnAreaCode(CALLING_CODE, rest, rules, result);
}

std::string KesCNP_52::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) {
    if (!plantext::entered(number, rules, logger))
        return number;
    std::string result;
    if (!place(number, rules, result)) {
        // Only a number that cannot be placed as it stands is looked at behind the outside-line prefix.
        std::string prefix = rules->getExtPrefix();
        if (prefix.empty() || !startsWith(number, prefix) ||
            !place(std::string_view(number).substr(prefix.size()), rules, result))
            result = std::move(number);
    }
    if (Logger::m_Traces)
        logger->debug("dlr_Country_MakeCanonicalNumber returns '" + result + "'");
    return result;
}

} // namespace numbering

#include "numbering/KesCNP_61.h"

#include "PlanText.h"
#include "numbering/KesCNPRegistry.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_61::logger = Logger::getLogger(typeid(KesCNP_61).name());
std::string KesCNP_61::AREA_CODES_FILE =
    KesNumberingConfig::configFile(KesCNPRegistry::installationFile("61"));
std::string KesCNP_61::AREA_CODES_DEFAULT_FILE =
    KesNumberingConfig::configFile(KesCNPRegistry::defaultFile("61"));

namespace {

const KesAreaCodePlan::PlanFile PLAN_FILE = {"61", "No specific configuration file for Australia",
                                             "No specific dialing rules configuration file"};

const char* const CALLING_CODE = "61";
const std::size_t NATIONAL_LENGTH = 10;
const std::size_t LOCAL_LENGTH = 8;

// Service numbers keep their prefix outside the parentheses, followed by one blank.
struct Service {
    std::size_t length;
    std::string_view prefix;
    std::string_view lead; // what stands between "+" and the rest of the number
};
const Service SERVICES[] = {
    {10, "1300", "61 1300"},
    {10, "1800", "61 1800"},
    {6, "13", "61 13"},
};

} // namespace

KesCNP_61::KesCNP_61() : KesAreaCodePlan(PLAN_FILE, logger) {}

KesCNP_61::~KesCNP_61() = default;

std::string KesCNP_61::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) {
    if (!plantext::entered(number, rules, logger))
        return number;
    std::string result;
    std::string_view digits = number;
    if (digits.size() == NATIONAL_LENGTH && digits[0] == '0') {
        result = placeAtAreaCode(CALLING_CODE, digits.substr(1), UnknownAreaForm::NationalPrefixInParentheses,
                                 logger);
    } else if (digits.size() == LOCAL_LENGTH) {
        completeWithOwnAreaCode(CALLING_CODE, digits, rules, result);
    } else {
        for (const Service& service : SERVICES)
            if (digits.size() == service.length &&
                digits.substr(0, service.prefix.size()) == service.prefix) {
                result =
                    CanonicalNumber::writeWithoutArea(service.lead, digits.substr(service.prefix.size()));
                break;
            }
    }
    if (result.empty())
        result = std::move(number);
    if (Logger::m_Traces)
        logger->debug("dlr_Country_MakeCanonicalNumber returns '" + result + "'");
    return result;
}

} // namespace numbering

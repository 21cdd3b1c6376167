#include "numbering/KesAreaCodePlan.h"

#include "common/CanonicalNumber.h"
#include "config/PropertyFiles.h"
#include "config/PropertyRules.h"
#include "lifecycle/Conversion.h"
#include "numbering/KesCNPRegistry.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"
#include "rules/Explaining.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace numbering {

KesAreaCodePlan::KesAreaCodePlan(const PlanFile& file, Logger* planLogger)
    : translate(true), maxAreaCodeLength(0), areaCodeCount(0), areaCodeTree(new KesAreaCodeTree) {
    if (Logger::m_Traces)
        planLogger->debug("KesCNP_" + std::string(file.callingCode) + "()");
    loadAreaCodes(file, planLogger);
}

KesAreaCodePlan::~KesAreaCodePlan() = default;

void KesAreaCodePlan::loadAreaCodes(const PlanFile& file, Logger* planLogger) {
    const KesCNPRegistry::Plan& plan = *KesCNPRegistry::find(file.callingCode);
    try {
        const Poco::AutoPtr<NumberedProperties> properties(new NumberedProperties(
            readInstallationOrDefault(Conversion(owner).generation(), plan.installationFile(),
                                      plan.defaultFile(), planLogger, file.textWhenUnopenable,
                                      file.textWhenNotFound),
            "AC_"));
        if (plan.reads == KesCNPRegistry::Reads::TranslateAndAreaCodes)
            translate = translateOn(properties->getString("Translate"));
        // The list ends at the first missing key (a gap included), by exception like a normal file.
        properties->forEachNumberedValue([this](std::string_view value) {
            std::string digits = leadingDigits(value);
            if (static_cast<int>(digits.size()) > maxAreaCodeLength)
                maxAreaCodeLength = static_cast<int>(digits.size());
            areaCodeTree->insert(std::move(digits));
            ++areaCodeCount;
        });
    } catch (const std::exception& e) {
        const std::string planName = "KesCNP_" + std::string(file.callingCode);
        if (Logger::m_Traces)
            planLogger->debug(planName + " : " + e.what());
        if (Logger::m_Traces)
            planLogger->debug(planName + " : " +
                              " max length areacode : " + std::to_string(maxAreaCodeLength) +
                              " nb area code : " + std::to_string(areaCodeCount));
    }
}

std::size_t KesAreaCodePlan::areaCodeAt(std::string_view national, Logger* planLogger) {
    std::size_t length = areaCodeTree->areaCodeLength(national);
    if (KesExplanation* e = explaining())
        e->areaCodeFound = length == 0 ? KesExplanation::AreaCode::Unknown : KesExplanation::AreaCode::Found;
    if (Logger::m_Traces) {
        std::string quoted = "'" + std::string(national) + "'";
        if (length == 0)
            planLogger->debug(quoted + " doesn't begin with a known area code");
        else if (length == national.size())
            planLogger->debug(quoted + " is an area code");
        else
            planLogger->debug(quoted + " isn't an area code, but begins with '" +
                              std::string(national.substr(0, length)) + "' which is an area code");
    }
    return length;
}

std::string KesAreaCodePlan::placeAtAreaCode(std::string_view callingCode, std::string_view national,
                                             UnknownAreaForm unknownAreaForm, Logger* planLogger) {
    std::size_t areaLength = areaCodeAt(national, planLogger);
    if (areaLength == 0) {
        if (unknownAreaForm == UnknownAreaForm::NationalPrefixInParentheses)
            return canonical(callingCode, "0", national);
        areaLength = std::min<std::size_t>(2, national.size());
    }
    return canonical(callingCode, national.substr(0, areaLength), national.substr(areaLength));
}

std::string KesAreaCodePlan::canonical(std::string_view callingCode, std::string_view areaCode,
                                       std::string_view subscriber) {
    return CanonicalNumber::write(callingCode, areaCode, subscriber);
}

bool KesAreaCodePlan::completeWithOwnAreaCode(std::string_view callingCode, std::string_view local,
                                              KesDialRulesItem* rules, std::string& result) {
    if (!translate)
        return false;
    std::string own = rules->getAreaCode();
    if (own.empty())
        return false;
    result = canonical(callingCode, own, local);
    if (KesExplanation* e = explaining())
        e->areaCodeFound = KesExplanation::AreaCode::OwnAreaCode;
    return true;
}

} // namespace numbering

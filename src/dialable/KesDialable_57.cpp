#include "numbering/KesDialable_57.h"

#include "config/PropertyFiles.h"
#include "lifecycle/Conversion.h"
#include "numbering/KesCNPRegistry.h"
#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

char KesDialable_57::MOBILE_OP_START_WITH = '3';
std::string KesDialable_57::MOBILE_PREFIX = "3";
std::string KesDialable_57::DEFAULT_OP_PREFIX = "9";
std::string KesDialable_57::OP_DEFAULT_KEY = "OP_DEFAULT";
Logger* KesDialable_57::logger = Logger::getLogger(typeid(KesDialable_57).name());

KesDialable_57::KesDialable_57() : operatorPrefix(DEFAULT_OP_PREFIX) {
    if (Logger::m_Traces)
        logger->debug("KesDialable_57()");
    operatorTree = new KesAreaCodeTree();
    // The first missing "OP_" key ends the list, as it ends every file; whatever came before it
    // stays loaded, so a gap in the numbering hides the keys after it.
    try {
        const Poco::AutoPtr<NumberedProperties> file(new NumberedProperties(
            readPropertyFile(Conversion(owner).generation(), KesCNPRegistry::installationFile("57")), "OP_"));
        operatorPrefix = file->getString(OP_DEFAULT_KEY, DEFAULT_OP_PREFIX);
        file->forEachNumberedValue(
            [this](std::string_view value) { operatorTree->insert(leadingDigits(value)); });
    } catch (const std::exception& e) {
        if (Logger::m_Traces)
            logger->debug(std::string("KesDialable_57 : ") + e.what());
    }
}

KesDialable_57::~KesDialable_57() = default;

std::string KesDialable_57::extractOperatorPrefix(std::string number) {
    std::string::size_type length = operatorTree->areaCodeLength(number);
    if (length == 0)
        return std::string();
    std::string found = number.substr(0, length);
    if (Logger::m_Traces) {
        if (found == number)
            logger->debug("'" + number + "' is an Colombian operator prefix");
        else
            logger->debug("'" + number + "' isn't an Colombian operator prefix, but begins with '" + found +
                          "' which is an Colombian operator prefix");
    }
    return found;
}

std::string KesDialable_57::makeInternationalDialableNumber(std::string& country, std::string& areaNatPfx,
                                                            std::string& number,
                                                            KesCountryRuleItem* countryRule) {
    std::string result;
    result += countryRule->getInternatPfx();
    result += operatorPrefix;
    std::string rule = countryRule->getInternatRule();
    if (rule.find('E') != std::string::npos)
        result += number;
    if (rule.find('F') != std::string::npos) {
        dropDestinationNationalPrefix(country, areaNatPfx);
        result += areaNatPfx;
    }
    result += number;
    return result;
}

std::string KesDialable_57::makeLongDistDialableNumber(std::string& areaNatPfx, std::string& number,
                                                       KesCountryRuleItem* countryRule, KesDialRulesItem*) {
    // Mobile numbers begin with "3" and are reached through the mobile prefix, every other
    // national number through the operator.
    char first = areaNatPfx.empty() ? number.at(0) : areaNatPfx[0];
    std::string result;
    result += countryRule->getLongDistPrefix();
    result += first == MOBILE_OP_START_WITH ? MOBILE_PREFIX : operatorPrefix;
    result += areaNatPfx;
    result += number;
    return result;
}

} // namespace numbering

#include "numbering/KesCNP_54.h"

#include "PlanText.h"
#include "config/Store.h"
#include "lifecycle/Conversion.h"
#include "numbering/KesCNPRegistry.h"
#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

std::string KesCNP_54::PREFIX_MOBILE_NATIONAL = "15";
std::string KesCNP_54::PREFIX_MOBILE_INTERNATIONAL = "9";
Logger* KesCNP_54::logger = Logger::getLogger(typeid(KesCNP_54).name());
std::string KesCNP_54::AREA_CODES_FILE =
    KesNumberingConfig::configFile(KesCNPRegistry::installationFile("54"));
std::string KesCNP_54::AREA_CODES_DEFAULT_FILE =
    KesNumberingConfig::configFile(KesCNPRegistry::defaultFile("54"));

namespace {

const KesAreaCodePlan::PlanFile PLAN_FILE = {"54", "No specific configuration file for Argentina",
                                             "No specific configuration file for Argentina"};

// Numbers of these lengths are local numbers of the installation's own area.
const std::size_t SHORTEST_LOCAL = 6;
const std::size_t LONGEST_LOCAL = 8;
const std::size_t LONGEST = 15;

} // namespace

KesCNP_54::KesCNP_54() : KesAreaCodePlan(PLAN_FILE, logger) {}

KesCNP_54::~KesCNP_54() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_54: Destruct");
}

bool KesCNP_54::strip(const std::string& number, KesDialRulesItem* rules, StrippedNumber& split) {
    if (rules == nullptr)
        return false;
    if (Logger::m_Traces)
        logger->debug("stripNbr('" + number + "', '" + rules->ToString() + "')");
    // Without an "AR" row the national prefix is taken as empty, which every number begins with.
    const Conversion conversion(owner);
    KesCountryRuleItem* argentina = storeOf(conversion.generation()).findCountryRule("AR");
    std::string nationalPrefix = argentina != nullptr ? argentina->getLongDistPrefix() : std::string();
    std::string ownArea = rules->getAreaCode();

    if (number.size() >= SHORTEST_LOCAL && number.size() <= LONGEST_LOCAL) {
        split = {ownArea, number, false};
        if (Logger::m_Traces)
            logger->debug("Only local number");
    } else if (number.size() > LONGEST) {
        if (Logger::m_Traces)
            logger->debug("Argentina StripNumber returns null");
        return false;
    } else {
        std::string work = number;
        if (startsWith(work, nationalPrefix)) {
            if (Logger::m_Traces)
                logger->debug("number starts with national prefix:" + nationalPrefix);
            work.erase(0, nationalPrefix.size());
        }
        bool mobile = false;
        if (startsWith(work, PREFIX_MOBILE_INTERNATIONAL)) {
            if (Logger::m_Traces)
                logger->debug("Mobile international prefix is found:" + PREFIX_MOBILE_INTERNATIONAL);
            work.erase(0, PREFIX_MOBILE_INTERNATIONAL.size());
            mobile = true;
        }
        std::size_t areaLength = areaCodeTree->areaCodeLength(work);
        if (areaLength == 0) {
            if (mobile) {
                if (Logger::m_Traces)
                    logger->debug(
                        "No area code found but prefix mobile international found before: bad format");
                return false;
            }
            // The local mobile prefix is looked for in the number as dialled, not behind a national prefix.
            if (startsWith(number, PREFIX_MOBILE_NATIONAL)) {
                if (Logger::m_Traces)
                    logger->debug("number starts with local mobile prefix:" + PREFIX_MOBILE_NATIONAL);
                work = number.substr(PREFIX_MOBILE_NATIONAL.size());
                mobile = true;
            }
            split = {ownArea, work, mobile};
        } else {
            std::string area = work.substr(0, areaLength);
            if (Logger::m_Traces)
                logger->debug("Area code is found:" + area);
            work.erase(0, areaLength);
            if (startsWith(work, PREFIX_MOBILE_NATIONAL)) {
                if (Logger::m_Traces)
                    logger->debug("Mobile national prefix is found:" + PREFIX_MOBILE_NATIONAL);
                work.erase(0, PREFIX_MOBILE_NATIONAL.size());
                mobile = true;
            }
            split = {area, work, mobile};
        }
    }
    if (Logger::m_Traces)
        logger->debug("Argentina stripNumber returns " + split.area + "/" + split.number + "/" +
                      (split.mobile ? "true" : "false"));
    return true;
}

KesCNP_54::StrippedNumber* KesCNP_54::StripNbr(std::string number, KesDialRulesItem* rules) {
    StrippedNumber split;
    if (!strip(number, rules, split))
        return nullptr;
    return new StrippedNumber(std::move(split));
}

std::string KesCNP_54::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) {
    if (rules == nullptr)
        return number;
    if (Logger::m_Traces)
        logger->debug(plantext::callTrace("DlrArgentinaMakeCanonicalNumber", number, rules));
    StrippedNumber split;
    if (!strip(number, rules, split)) {
        if (Logger::m_Traces)
            logger->debug("DlrArgentinaMakeCanonicalNumber: not possible to strip the number");
        return number;
    }
    std::string result = canonical(split.mobile ? "54 9" : "54", split.area, split.number);
    if (Logger::m_Traces)
        logger->debug("DlrArgentinaMakeCanonicalNumber: strCanPhoneNumber=" + result);
    return result;
}

} // namespace numbering

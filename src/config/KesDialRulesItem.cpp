#include "numbering/KesDialRulesItem.h"

#include "Store.h"
#include "common/NumberText.h"
#include "lifecycle/Conversion.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/KesUnsupportedCountryException.h"
#include "numbering/Logger.h"

#include <Poco/StringTokenizer.h>

#include <ostream>
#include <sstream>
#include <stdexcept>
#include <typeinfo>

namespace numbering {

Logger* KesDialRulesItem::logger = Logger::getLogger(typeid(KesDialRulesItem).name());

KesDialRulesItem::KesDialRulesItem() : countryId("FR"), localNbLength(0), exceptNbLength(0) {
    setAreaCode("");
}

KesDialRulesItem::KesDialRulesItem(std::string country, std::string prefix, int localLength,
                                   std::string codes, int exceptLength, std::string exceptBegin) {
    checkCountry(country);
    countryId = std::move(country);
    extPrefix = std::move(prefix);
    setAreaCode(std::move(codes));
    exceptNbBegin = std::move(exceptBegin);
    localNbLength = localLength < 0 ? 0 : localLength;
    exceptNbLength = exceptLength < 0 ? 0 : exceptLength;
}

KesDialRulesItem::~KesDialRulesItem() = default;

void KesDialRulesItem::checkCountry(const std::string& code) {
    if (code.size() != 2)
        throw std::invalid_argument(
            "'strCountryCode' parameter can not be null and must be an Alpha-2 ISO 3166 country code");
    const Conversion conversion; // a reload may run on another thread
    KesNumberingConfig* config = &storeOf(conversion.generation());
    if (config == nullptr)
        throw KesUnsupportedCountryException(code, "Dialing rules configuration can not be loaded");
    if (!config->validCountryCode(code))
        throw KesUnsupportedCountryException(code);
}

void KesDialRulesItem::setCountryId(std::string code) {
    checkCountry(code);
    countryId = std::move(code);
}

void KesDialRulesItem::setAreaCode(std::string codes) {
    areaCode.clear();
    if (codes.empty())
        return;
    m_areaCodesList.clear();
    Poco::StringTokenizer tokens(codes, ",",
                                 Poco::StringTokenizer::TOK_TRIM | Poco::StringTokenizer::TOK_IGNORE_EMPTY);
    for (const std::string& code : tokens)
        m_areaCodesList.push_back(code);
    if (!m_areaCodesList.empty())
        areaCode = m_areaCodesList.front();
}

void KesDialRulesItem::setExceptNbLength(int length) {
    // Tests the value already held, not the argument: kept unlike setLocalNbLength on purpose.
    exceptNbLength = exceptNbLength < 0 ? 0 : length;
}

bool KesDialRulesItem::isLocalNumber(std::string number) {
    bool local = static_cast<long>(number.size()) < localNbLength;
    if (Logger::m_Traces)
        logger->debug("isLocalNumber('" + number + "')=" + (local ? "true" : "false"));
    return local;
}

bool KesDialRulesItem::beginsWithExceptionDigits(std::string_view number) const {
    // The exception length never changes the answer: only the leading digits count.
    return !number.empty() && !exceptNbBegin.empty() && startsWith(number, exceptNbBegin);
}

bool KesDialRulesItem::isExceptionNumber(std::string number) {
    bool exception = beginsWithExceptionDigits(number);
    if (Logger::m_Traces)
        logger->debug("isExceptionNumber('" + number + "')=" + (exception ? "true" : "false"));
    return exception;
}

std::string KesDialRulesItem::ToString() {
    std::ostringstream text;
    text << "CountryCode : '" << countryId << "', External Prefix : '" << extPrefix
         << "', Local length : " << localNbLength << ", AreaCode : '" << areaCode << "', m_areaCodesList : ";
    for (const std::string& code : m_areaCodesList)
        text << " '" << code << "'";
    text << ", Except length : " << exceptNbLength << ", Except begin : '" << exceptNbBegin << "'"
         << std::ends;
    return text.str();
}

} // namespace numbering

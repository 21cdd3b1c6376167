#ifndef NUMBERING_KESDIALRULESITEM_H
#define NUMBERING_KESDIALRULESITEM_H

#include "numbering/Export.h"

#include <string>
#include <vector>

class Logger;

namespace numbering {

/// The installation on whose behalf numbers are converted: its country, the prefix that seizes an
/// outside line, its own area codes, the length below which a number is internal, and the leading
/// digits of the numbers dialled without the outside-line prefix. Built and owned by the host.
class NUMBERING_API KesDialRulesItem {
public:
    /// Country "FR" (not validated), everything else empty or 0.
    KesDialRulesItem();
    /// Validates the country against the dialing rules: std::invalid_argument unless it has two
    /// characters, KesUnsupportedCountryException when the rules do not know it.
    KesDialRulesItem(std::string countryId, std::string extPrefix, int localNbLength, std::string areaCode,
                     int exceptNbLength, std::string exceptNbBegin);
    virtual ~KesDialRulesItem();

    virtual void setCountryId(std::string code);
    virtual std::string getCountryId() { return countryId; }
    virtual void setExtPrefix(std::string prefix) { extPrefix = std::move(prefix); }
    virtual std::string getExtPrefix() { return extPrefix; }
    virtual void setLocalNbLength(int length) { localNbLength = length < 0 ? 0 : length; }
    virtual int getLocalNbLength() { return localNbLength; }
    /// Comma-separated codes; the first becomes the main area code. An empty text clears only the
    /// main area code and keeps the list.
    virtual void setAreaCode(std::string codes);
    virtual std::string getAreaCode() { return areaCode; }
    virtual std::vector<std::string>& getAreaCodesList() { return m_areaCodesList; }
    virtual void setExceptNbLength(int length);
    virtual int getExceptNbLength() { return exceptNbLength; }
    virtual void setExceptNbBegin(std::string begin) { exceptNbBegin = std::move(begin); }
    virtual std::string getExceptNbBegin() { return exceptNbBegin; }
    /// Shorter than the local number length.
    virtual bool isLocalNumber(std::string number);
    /// Begins with the exception digits (the exception length plays no part).
    virtual bool isExceptionNumber(std::string number);
    /// All fields on one line, closed by a NUL character that is part of the text.
    virtual std::string ToString();

    static Logger* logger;

private:
    static void checkCountry(const std::string& code);

    std::string countryId;
    std::string extPrefix;
    int localNbLength;
    std::string areaCode;
    std::vector<std::string> m_areaCodesList;
    int exceptNbLength;
    std::string exceptNbBegin;
};

} // namespace numbering

#endif

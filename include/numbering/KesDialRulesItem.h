#ifndef NUMBERING_KESDIALRULESITEM_H
#define NUMBERING_KESDIALRULESITEM_H

#include "numbering/Export.h"

#include <string>
#include <string_view>
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

    /// Validates `code` as the constructor does (same exceptions) and makes it the country.
    virtual void setCountryId(std::string code);
    /// The two-letter country code ("FR").
    virtual std::string getCountryId() { return countryId; }
    /// Sets the prefix that seizes an outside line (not validated).
    virtual void setExtPrefix(std::string prefix) { extPrefix = std::move(prefix); }
    /// The prefix that seizes an outside line, or "".
    virtual std::string getExtPrefix() { return extPrefix; }
    /// Sets the local number length; a negative length becomes 0.
    virtual void setLocalNbLength(int length) { localNbLength = length < 0 ? 0 : length; }
    /// Numbers shorter than this are internal (0: none is).
    virtual int getLocalNbLength() { return localNbLength; }
    /// Comma-separated codes; the first becomes the main area code. An empty text clears only the
    /// main area code and keeps the list.
    virtual void setAreaCode(std::string codes);
    /// The main area code, or "".
    virtual std::string getAreaCode() { return areaCode; }
    /// Every own area code, the main one first.
    virtual std::vector<std::string>& getAreaCodesList() { return m_areaCodesList; }
    /// Sets the exception number length. Unlike setLocalNbLength it tests the length already held,
    /// not `length`, so a negative `length` is stored as given.
    virtual void setExceptNbLength(int length);
    /// The exception number length (informative: no conversion reads it).
    virtual int getExceptNbLength() { return exceptNbLength; }
    /// Sets the leading digits of the numbers dialled without the outside-line prefix.
    virtual void setExceptNbBegin(std::string begin) { exceptNbBegin = std::move(begin); }
    /// The leading digits of the numbers dialled without the outside-line prefix, or "".
    virtual std::string getExceptNbBegin() { return exceptNbBegin; }
    /// Shorter than the local number length.
    virtual bool isLocalNumber(std::string number);
    /// Begins with the exception digits (the exception length plays no part).
    virtual bool isExceptionNumber(std::string number);
    /// isExceptionNumber(number) without its trace and without a copy of the number.
    bool beginsWithExceptionDigits(std::string_view number) const;
    /// isLocalNumber(number) || isExceptionNumber(number), without their traces and copies.
    bool isLocalOrExceptionNumber(std::string_view number) const {
        return static_cast<long>(number.size()) < localNbLength || beginsWithExceptionDigits(number);
    }
    /// getExtPrefix() without a copy.
    const std::string& extPrefixText() const { return extPrefix; }
    /// All fields on one line, closed by a NUL character that is part of the text.
    virtual std::string ToString();

    /// The item's traces.
    static Logger* logger;

private:
    friend class KesNumberingConfig; // makes the rules of each country's national numbers
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

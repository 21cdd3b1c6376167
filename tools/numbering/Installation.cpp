#include "Installation.h"

using numbering::KesConfigurationFinding;
using numbering::KesSiteFile;

namespace {

/// The option that sets the site file key `key`.
const char* optionOf(const std::string& key) {
    if (key == KesSiteFile::COUNTRY)
        return "--country";
    if (key == KesSiteFile::EXT_PREFIX)
        return "--ext-prefix";
    if (key == KesSiteFile::AREA_CODES)
        return "--area-codes";
    if (key == KesSiteFile::LOCAL_LENGTH)
        return "--local-length";
    if (key == KesSiteFile::EXCEPT_LENGTH)
        return "--except-length";
    return "--except-begin";
}

} // namespace

Installation readInstallation(const Options& options) {
    Installation installation;
    KesSiteFile& site = installation.site;
    const bool fromFile = !options.siteFile.empty();
    if (fromFile)
        site = KesSiteFile::read(options.siteFile);
    auto take = [&](const char* key, auto& setting, const auto& option) {
        if (!fromFile || options.given.count(key) != 0) {
            setting = option;
            site.forget(key);
        }
    };
    take(KesSiteFile::COUNTRY, site.country, options.country);
    take(KesSiteFile::EXT_PREFIX, site.extPrefix, options.extPrefix);
    take(KesSiteFile::AREA_CODES, site.areaCodes, options.areaCodes);
    take(KesSiteFile::LOCAL_LENGTH, site.localLength, options.localLength);
    take(KesSiteFile::EXCEPT_LENGTH, site.exceptLength, options.exceptLength);
    take(KesSiteFile::EXCEPT_BEGIN, site.exceptBegin, options.exceptBegin);
    installation.findings = site.check();
    for (KesConfigurationFinding& finding : installation.findings)
        if (!fromFile || options.given.count(finding.key) != 0)
            finding.file = optionOf(finding.key);
    return installation;
}

#include "ReloadedWorld.h"

#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingRules.h"

#include <fstream>
#include <iterator>
#include <unistd.h>

namespace fs = std::filesystem;

namespace reloaded {

ConfigurationCopy::ConfigurationCopy(const std::string& name, const Files& files)
    : path(fs::temp_directory_path() / ("numbering-concurrency-" + std::to_string(getpid()) + "-" + name)) {
    fs::create_directories(path);
    for (const fs::directory_entry& entry : fs::directory_iterator(NUMBERING_SHIPPED_DATA))
        fs::copy_file(entry.path(), path / entry.path().filename(), fs::copy_options::overwrite_existing);
    write(files);
}

ConfigurationCopy::~ConfigurationCopy() {
    fs::remove_all(path);
}

void ConfigurationCopy::write(const Files& files) const {
    for (const auto& file : files)
        std::ofstream(path / file.first, std::ios::binary) << file.second;
}

namespace {

std::string shipped(const std::string& fileName) {
    std::ifstream file(std::string(NUMBERING_SHIPPED_DATA) + fileName);
    return std::string((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
}

/// The shipped dialing rules with another French international prefix.
std::string dialingRulesWithFrenchPrefix(const std::string& prefix) {
    std::string text = shipped("dialingrules_default.properties");
    const std::string france = "FR=33:00:";
    const std::string::size_type at = text.find(france);
    return at == std::string::npos ? text : text.replace(at, france.size(), "FR=33:" + prefix + ":");
}

/// The shipped masks with those of `lines` ("Mask_33_1=...\n") in place of the shipped ones: every
/// country keeps a mask, so that the configuration check finds no error.
std::string shippedMasksWith(const std::string& lines) {
    std::string text = shipped("dlr_cnp_mask_default.properties");
    for (std::string::size_type begin = 0; begin < lines.size();) {
        const std::string::size_type end = lines.find('\n', begin) + 1;
        const std::string line = lines.substr(begin, end - begin);
        const std::string key = "\n" + line.substr(0, line.find('=') + 1);
        const std::string::size_type at = text.find(key);
        text.replace(at + 1, text.find('\n', at + 1) - at, line);
        begin = end;
    }
    return text;
}

} // namespace

const std::vector<Typed> RELOADED = {
    {"DE", "089123456"},       {"DE", "+49 891 23456"},     {"FR", "01 23 45 67 89"},
    {"FR", "+49 (89) 123456"}, {"GB", "+33 1 23 45 67 89"}, {"US", "+49 891 234567"},
};

const ConfigurationCopy::Files VARIANT_A = {
    {"dlr_cnp_mask.properties", shippedMasksWith("Mask_33_1=+C (a) x xx xx xx xx\nMask_49_1=+C (A) x\n"
                                                 "Mask_44_1=+C (A) x\nMask_1_1=+C (A) x\n")},
    {"tz310cnp_49.properties", "Translate=1\nAC_0000=30\nAC_0001=89\n"},
    {"dialingrules.properties", dialingRulesWithFrenchPrefix("00")}};
const ConfigurationCopy::Files VARIANT_B = {
    {"dlr_cnp_mask.properties", shippedMasksWith("Mask_33_1=+C (a) xxxxxxxxx\nMask_49_1=+C (A) xx xx x\n"
                                                 "Mask_44_1=+C (A) xx x\nMask_1_1=+C (A) xxx x\n")},
    {"tz310cnp_49.properties", "Translate=1\nAC_0000=30\nAC_0001=891\n"},
    {"dialingrules.properties", dialingRulesWithFrenchPrefix("000")}};

std::vector<std::string> convertOnce(const Typed& typed) {
    numbering::KesNumberingRules* rules = numbering::KesNumberingRules::getInstance();
    numbering::KesDialRulesItem site(typed.country, "0", 4, "", 0, "");
    return {rules->makeCanonicalNumber(&site, typed.number, ""),
            rules->makeGSMCanonicalNumber(&site, typed.number, false),
            rules->makePhoneNumber(&site, typed.number)};
}

std::vector<std::vector<std::string>> convertAll() {
    std::vector<std::vector<std::string>> results;
    for (const Typed& typed : RELOADED)
        results.push_back(convertOnce(typed));
    return results;
}

} // namespace reloaded

#include "Suite.h"

#include <algorithm>
#include <cstdio>
#include <dirent.h>
#include <fstream>
#include <mutex>
#include <sys/stat.h>

bool Logger::m_Traces = false;

namespace {
std::mutex linesMutex; // a host's sink must take lines from several threads at once
}

void FlogWrite(const char* text, short /*value*/) {
    std::lock_guard<std::mutex> lock(linesMutex);
    testhost::lines().emplace_back(text);
}

namespace testhost {

std::vector<std::string>& lines() {
    static std::vector<std::string> received;
    return received;
}

void clear() {
    std::lock_guard<std::mutex> lock(linesMutex);
    lines().clear();
}

int countLogged(const std::string& text) {
    std::lock_guard<std::mutex> lock(linesMutex);
    return static_cast<int>(std::count_if(lines().begin(), lines().end(), [&](const std::string& line) {
        return line.find(text) != std::string::npos;
    }));
}

Tracing::Tracing(bool on) : previous(Logger::m_Traces) {
    Logger::m_Traces = on;
    clear();
}

Tracing::~Tracing() {
    Logger::m_Traces = previous;
}

std::vector<std::string> everyConversion(KesDialRulesItem* site, const std::string& number) {
    KesNumberingRules* rules = KesNumberingRules::getInstance();
    Poco::AutoPtr<KesClid> clid(rules->makeClid(site, number));
    return {rules->makeCanonicalNumber(site, number, ""),
            rules->makeCanonicalNumber(site, number, "+C (A) x\n", true),
            rules->makeGSMCanonicalNumber(site, number, false),
            rules->makeGSMCanonicalNumber(site, number, true),
            rules->makePhoneNumber(site, number),
            rules->addExternalPrefix(site, number),
            clid.isNull() ? "" : clid->getNumber() + "/" + clid->getOrigin()->name};
}

std::string widened(const std::string& text, std::size_t width, bool bigEndian) {
    std::string wide;
    for (char c : text) {
        const std::string zeros(width - 1, '\0');
        wide += bigEndian ? zeros + c : c + zeros;
    }
    return wide;
}

} // namespace testhost

namespace testconfig {

const char* const STANDARD_DIALING_RULES = "AR = 54:00:EF:0F::Argentina:P\n"
                                           "AT = 43:00:EF:0F::Austria:P\n"
                                           "AU = 61:0011:EF:0F::Australia:P\n"
                                           "BE = 32:00:EF:0F::Belgium:P\n"
                                           "CA = 1:011:EF:1F::Canada:\n"
                                           "CH = 41:00:EF:0F::Switzerland:P\n"
                                           "CO = 57:00:EF:0F::Colombia:P\n"
                                           "DE = 49:00:EF:0F::Germany:P\n"
                                           "ES = 34:00:EF:F:F:Spain:P\n"
                                           "FR = 33:00:EF:0F::France:P\n"
                                           "GB = 44:00:EF:0F::United Kingdom:P\n"
                                           "IE = 353:00:EF:0F::Ireland:P\n"
                                           "IT = 39:00:EF:F:F:Italy:P\n"
                                           "MX = 52:00:EF:01F::Mexico:P\n"
                                           "NL = 31:00:EF:0F::Netherlands:P\n"
                                           "NZ = 64:00:EF:0F::New Zealand:P\n"
                                           "RU = 7:810:EF:8F::Russia:P\n"
                                           "US = 1:011:EF:1F::United States:P\n";

std::string directory() {
    return KesNumberingConfig::configDirectory();
}

void write(const std::string& fileName, const std::string& content) {
    ::mkdir(directory().c_str(), 0755);
    std::ofstream file(directory() + fileName, std::ios::binary | std::ios::trunc);
    if (!file)
        throw std::runtime_error("cannot write " + directory() + fileName);
    file << content;
}

void remove(const std::string& fileName) {
    std::remove((directory() + fileName).c_str());
}

void clearAll() {
    DIR* dir = ::opendir(directory().c_str());
    if (dir == nullptr)
        return;
    while (dirent* entry = ::readdir(dir)) {
        std::string name = entry->d_name;
        if (name != "." && name != "..")
            remove(name);
    }
    ::closedir(dir);
}

const std::string& identityMasks() {
    static const std::string masks = [] {
        std::string text;
        for (int countryNumber = 1; countryNumber <= 999; ++countryNumber)
            text += "Mask_" + std::to_string(countryNumber) + "_1 = +C (A) x\n";
        return text;
    }();
    return masks;
}

void useWorld(const std::string& dialingRules, const Files& files) {
    clearAll();
    write("dialingrules.properties", dialingRules);
    write("dlr_cnp_mask.properties", identityMasks());
    for (const auto& [name, content] : files)
        write(name, content);
    reload();
}

} // namespace testconfig

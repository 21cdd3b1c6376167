// Fuzzes the property-file readers: the input, split at NUL bytes, becomes the dialing rules, masks,
// activation switches, the German, Argentine and Australian area code files and the Colombian operator
// file of a scratch configuration directory; the library reloads them and converts a few numbers.
// The library's reading of a property file must hand over the keys and values Poco's load gives: the
// whole input, NUL bytes included, is read by both and compared.
#include "FuzzHost.h"

#include "config/PropertyText.h"

#include "numbering/KesClid.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingRules.h"
#include "numbering/KesUnsupportedCountryException.h"

#include <Poco/MemoryStream.h>
#include <Poco/Util/PropertyFileConfiguration.h>

#include <cstdint>
#include <fstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

using namespace numbering;

namespace {

const char* const FILES[] = {
    "dialingrules.properties", "dlr_cnp_mask.properties", "specific_format_activation.properties",
    "tz310cnp_49.properties",  "tz310cnp_54.properties",  "tz310cnp_61.properties",
    "tz310cnp_57.properties"};

std::string directory;

using Properties = std::vector<std::pair<std::string, std::string>>;

/// Every key and value Poco's load hands over, in order.
class PocoReading : public Poco::Util::PropertyFileConfiguration {
public:
    explicit PocoReading(const std::string& text) {
        Poco::MemoryInputStream stream(text.data(), static_cast<std::streamsize>(text.size()));
        load(stream);
    }
    Properties read;

protected:
    void setRaw(const std::string& key, const std::string& value) override { read.emplace_back(key, value); }
};

void compareWithPoco(const std::string& text) {
    Properties ours;
    numbering::readPropertyText(text, [&](std::string_view key, std::string_view value) {
        ours.emplace_back(std::string(key), std::string(value));
    });
    const Poco::AutoPtr<PocoReading> poco(new PocoReading(text));
    if (ours != poco->read)
        std::abort();
}

void convertSome(KesNumberingRules* rules, KesDialRulesItem* site) {
    static const char* const numbers[] = {
        "01 23 45 67 89", "+49 (89) 123456", "0111543215678",  "033001234567",
        "0212345678",     "84951234567",     "+7 495 1234567", "123"};
    for (const char* number : numbers) {
        rules->makeCanonicalNumber(site, number, "");
        rules->makePhoneNumber(site, number);
        rules->makeGSMCanonicalNumber(site, number, false);
        if (KesClid* clid = rules->makeClid(site, number))
            clid->release();
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char*** argv) {
    const char* current = std::getenv("NUMBERING_CONFIG_DIR");
    if (current == nullptr) {
        char scratch[] = "/tmp/numbering-fuzz-XXXXXX";
        if (mkdtemp(scratch) == nullptr)
            std::abort();
        fuzzhost::useConfigurationDirectory(std::string(scratch) + "/", *argv);
    }
    directory = std::getenv("NUMBERING_CONFIG_DIR");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::string input(reinterpret_cast<const char*>(data), size);
    compareWithPoco(input);
    std::string::size_type start = 0;
    for (const char* file : FILES) {
        std::string path = directory + file;
        if (start > input.size()) {
            std::remove(path.c_str());
            continue;
        }
        std::string::size_type end = input.find('\0', start);
        if (end == std::string::npos)
            end = input.size();
        std::ofstream(path, std::ios::binary | std::ios::trunc) << input.substr(start, end - start);
        start = end + 1;
    }

    KesNumberingRules::resetInstance();
    KesNumberingRules* rules = KesNumberingRules::getInstance();
    KesDialRulesItem unchecked; // "FR", whether or not the rules know it
    unchecked.setExtPrefix("0");
    unchecked.setAreaCode("1");
    convertSome(rules, &unchecked);
    for (const char* country : {"DE", "AR", "CO", "AU", "RU", "MX"}) {
        try {
            KesDialRulesItem site(country, "0", 4, "11", 0, "");
            convertSome(rules, &site);
        } catch (const KesUnsupportedCountryException&) {
        } catch (const std::invalid_argument&) {
        }
    }
    return 0;
}

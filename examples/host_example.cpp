// A host process of libNumbering: it owns the log sink and the tracing switch, names the directory
// of its configuration, and converts numbers for a French installation.
//   host_example [configuration directory]
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingRules.h"
#include "numbering/KesUnsupportedCountryException.h"
#include "numbering/Logger.h"

#include <cstdio>
#include <exception>
#include <iostream>
#include <string>

bool Logger::m_Traces = false; // the host owns the tracing switch...

void FlogWrite(const char* text, short) { // ...and the log sink
    std::fprintf(stderr, "libNumbering: %s\n", text);
}

using namespace numbering;

int main(int argc, char** argv) {
    const std::string directory = argc > 1 ? argv[1] : "/current/tele_mnt/lib_numbering/";
    int status = 0;
    try {
        KesNumberingRules::reload(directory); // before the first getInstance(): the first load reads there
        KesNumberingRules* rules = KesNumberingRules::getInstance();
        // Country, outside-line prefix, local number length, own area codes, exception numbers.
        KesDialRulesItem paris("FR", "0", 0, "1", 0, "");
        std::string canonical = rules->makeCanonicalNumber(&paris, "01 23 45 67 89", "");
        std::string dialled = rules->makePhoneNumber(&paris, "+49 (89) 123456");
        std::cout << canonical << "\n" << dialled << "\n"; // "+33 (0) 1 23 45 67 89", "0004989123456"
    } catch (const KesUnsupportedCountryException& e) {    // not a std::exception: caught by its name
        std::cerr << "host_example: " << e.what() << " - is " << directory
                  << " the configuration directory? It holds dialingrules.properties or "
                     "dialingrules_default.properties.\n";
        status = 1;
    } catch (const std::exception& e) {
        std::cerr << "host_example: " << e.what() << "\n";
        status = 1;
    }
    KesNumberingRules::resetInstance(); // releases every cache and the configuration
    return status;
}

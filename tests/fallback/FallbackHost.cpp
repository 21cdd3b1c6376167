// A program that defines neither FlogWrite nor Logger::m_Traces: it links against the library's
// fallbacks, which write to standard error with tracing off.
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

int main() {
    if (Logger::m_Traces)
        return 1;
    // No configuration file exists in this program's directory: the store says so at info level.
    numbering::KesNumberingConfig::getInstance();
    numbering::KesNumberingConfig::resetInstance();
    return 0;
}

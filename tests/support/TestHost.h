#ifndef NUMBERING_TESTS_TESTHOST_H
#define NUMBERING_TESTS_TESTHOST_H

// The test programs act as the host process: they define FlogWrite and Logger::m_Traces
// themselves, and the library must use these rather than its fallbacks.

#include <string>
#include <vector>

namespace testhost {

/// Every line FlogWrite received since the last clear().
std::vector<std::string>& lines();
void clear();
/// True when some received line contains `text`.
bool logged(const std::string& text);
/// How many received lines contain `text`.
int countLogged(const std::string& text);

/// Switches debug tracing on (or off) for one scope and clears the recorded lines.
class Tracing {
public:
    explicit Tracing(bool on = true);
    ~Tracing();

private:
    bool previous;
};

} // namespace testhost

#endif

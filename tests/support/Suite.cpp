#include "Suite.h"

#include <algorithm>
#include <mutex>

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

} // namespace testhost

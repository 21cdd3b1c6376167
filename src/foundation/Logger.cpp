#include "numbering/Logger.h"

#include <map>

namespace {

/// Appends `text` up to its first NUL with its control characters escaped; false when a NUL ended it.
bool appendEscaped(std::string& line, const std::string& text) {
    static const char HEX[] = "0123456789abcdef";
    for (char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x20 && byte != 0x7f) {
            line += c;
            continue;
        }
        switch (c) {
        case '\0':
            return false;
        case '\n':
            line += "\\n";
            break;
        case '\r':
            line += "\\r";
            break;
        case '\t':
            line += "\\t";
            break;
        default:
            line += "\\x";
            line += HEX[byte >> 4];
            line += HEX[byte & 0xf];
        }
    }
    return true;
}

} // namespace

Logger* Logger::getLogger(std::string name) {
    // The registry lives for this call only: callers ask once per class and keep the pointer.
    std::map<std::string, Logger*> registry;
    Logger* logger = new Logger(name);
    registry[name] = logger;
    return logger;
}

Logger::Logger(std::string loggerName) : name(std::move(loggerName)) {}

Logger::~Logger() = default;

void Logger::debug(std::string message) {
    write("DEBUG ", message);
}

void Logger::info(std::string message) {
    write("INFO ", message);
}

void Logger::error(std::string message) {
    write("ERROR ", message);
}

void Logger::error(std::string message, std::string continuation) {
    write("ERROR ", message, &continuation);
}

void Logger::write(const char* level, const std::string& message, const std::string* continuation) const {
    std::string line = level;
    line += name;
    line += " - ";
    if (appendEscaped(line, message) && continuation != nullptr) {
        line += '\n';
        appendEscaped(line, *continuation);
    }
    FlogWrite(line.c_str(), 1);
}

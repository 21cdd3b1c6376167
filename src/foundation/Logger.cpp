#include "numbering/Logger.h"

#include <map>
#include <sstream>

Logger* Logger::getLogger(std::string name) {
    // The registry lives for this call only: callers ask once per class and keep the pointer.
    std::map<std::string, Logger*> registry;
    Logger* logger = new Logger(name);
    registry[name] = logger;
    return logger;
}

Logger::Logger(std::string loggerName) : name(std::move(loggerName)) {}

Logger::~Logger() = default;

void Logger::debug(std::string message) { write("DEBUG ", message); }
void Logger::info(std::string message) { write("INFO ", message); }
void Logger::error(std::string message) { write("ERROR ", message); }

void Logger::write(const char* level, const std::string& message) const {
    std::ostringstream line;
    line << level << name << " - " << message;
    FlogWrite(line.str().c_str(), 1);
}

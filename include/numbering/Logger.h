#ifndef NUMBERING_LOGGER_H
#define NUMBERING_LOGGER_H

#include "numbering/Export.h"

#include <string>

/// The host process's log sink. The library always passes 1 as `value`.
/// A host defines it; the library carries a weak fallback that writes the line to standard error.
NUMBERING_API void FlogWrite(const char* text, short value);

/// One named diagnostic channel. Every class of the library owns one, made once during static
/// initialisation and never destroyed. Lines are "LEVEL name - message", handed to FlogWrite.
/// Messages carry numbers from outside (a calling number from a trunk), so their control characters
/// reach the sink escaped ("\n", "\r", "\t", "\x1b"): a message can neither start a line of its own
/// nor drive a terminal. As the sink takes a C string, a message ends at its first NUL.
class NUMBERING_API Logger {
public:
    /// Debug tracing switch, owned by the host (the library only reads it). Every debug call site
    /// tests it first, so that no debug text is built while tracing is off.
    static bool m_Traces;

    /// Returns a new logger bearing `name`; every call makes a distinct object, even for a known name.
    static Logger* getLogger(std::string name);

    virtual ~Logger();

    /// Writes a "DEBUG" line; callers test m_Traces first.
    void debug(std::string message);
    /// Writes an "INFO" line.
    void info(std::string message);
    /// Writes an "ERROR" line.
    void error(std::string message);
    /// An error line whose `continuation` follows on a line of its own, escaped in the same way:
    /// the one real line break a log line may hold.
    void error(std::string message, std::string continuation);

    /// The name on every line (the compiler's type name of the owning class).
    std::string name;

private:
    explicit Logger(std::string loggerName);
    void write(const char* level, const std::string& message,
               const std::string* continuation = nullptr) const;
};

#endif

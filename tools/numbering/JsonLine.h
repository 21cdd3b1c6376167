#ifndef NUMBERING_TOOLS_JSONLINE_H
#define NUMBERING_TOOLS_JSONLINE_H

#include <string>

/// One JSON object on one line, built member by member: {"command":"dial","input":"0123"}.
class JsonLine {
public:
    /// Adds a string member.
    JsonLine& add(const std::string& name, const std::string& value);
    /// Adds a number member.
    JsonLine& add(const std::string& name, long value);
    /// Adds a member whose value is `json`, already written as JSON (an object).
    JsonLine& addJson(const std::string& name, const std::string& json);
    /// The object, without line end.
    std::string text() const { return members.empty() ? "{}" : members + "}"; }

private:
    std::string members; // "{" and the members so far, comma-separated
};

#endif

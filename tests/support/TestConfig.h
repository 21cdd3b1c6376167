#ifndef NUMBERING_TESTS_TESTCONFIG_H
#define NUMBERING_TESTS_TESTCONFIG_H

// Each test program owns one configuration directory (NUMBERING_CONFIG_DIR, set by CTest);
// these helpers write the property files there and reload the library.

#include <string>

namespace testconfig {

/// The directory this test program's library reads from, ending in "/".
std::string directory();
/// Writes `content` to `fileName` in that directory.
void write(const std::string& fileName, const std::string& content);
void remove(const std::string& fileName);
/// Removes every file from the directory.
void clearAll();
/// Drops every singleton so that the next use re-reads the files.
void reload();

/// A small world of countries, enough for the conversions under test (France, Germany, the
/// United Kingdom, the United States with Canada sharing +1, Russia, Italy ...).
extern const char* const STANDARD_DIALING_RULES;
/// Masks that lay every canonical number out as it stands ("+C (A) x"), for every calling code of
/// one to three digits: a country without a mask would keep only its subscriber number.
const std::string& identityMasks();
/// Clears the directory, writes the standard dialing rules and the identity masks as installation
/// files, and reloads.
void useStandardWorld();

} // namespace testconfig

#endif

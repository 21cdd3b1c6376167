#ifndef NUMBERING_TESTS_CNP_CONVERSIONTABLE_H
#define NUMBERING_TESTS_CNP_CONVERSIONTABLE_H

// Table-driven checks of a plan's canonical conversion.

#include "numbering/KesCNP.h"
#include "numbering/KesDialRulesItem.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace conversiontable {

/// The expectation for a number the plan must return as it came.
constexpr const char* UNCHANGED = nullptr;

struct Conversion {
    const char* number;
    const char* expected;
};

inline void expectConversions(numbering::KesCNP& plan, numbering::KesDialRulesItem& rules,
                              std::initializer_list<Conversion> table) {
    for (const Conversion& c : table) {
        std::string expected = c.expected == UNCHANGED ? c.number : c.expected;
        EXPECT_EQ(plan.dlr_Country_MakeCanonicalNumber(c.number, &rules), expected)
            << "number '" << c.number << "'";
    }
}

} // namespace conversiontable

#endif

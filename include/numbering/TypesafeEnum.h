#ifndef NUMBERING_TYPESAFEENUM_H
#define NUMBERING_TYPESAFEENUM_H

#include "numbering/Export.h"

#include <string>

/// A value of a typesafe enumeration: a display name and an id unique across all values,
/// taken from a counter in construction order. Values compare by id only.
class NUMBERING_API TypesafeEnum {
public:
    /// A new value named `name`, with the next id.
    explicit TypesafeEnum(std::string name);
    virtual ~TypesafeEnum();

    /// Same id.
    bool operator==(const TypesafeEnum& other) const { return id == other.id; }
    /// Different ids.
    bool operator!=(const TypesafeEnum& other) const { return id != other.id; }
    /// Made earlier.
    bool operator<(const TypesafeEnum& other) const { return id < other.id; }

    /// Unique across all values, from 1 in construction order.
    int id;
    /// The display name ("INTERNATIONAL").
    std::string name;

    /// The id of the next value made.
    static int next_id;
};

#endif

#ifndef NUMBERING_TYPESAFEENUM_H
#define NUMBERING_TYPESAFEENUM_H

#include "numbering/Export.h"

#include <string>

/// A value of a typesafe enumeration: a display name and an id unique across all values,
/// taken from a counter in construction order. Values compare by id only.
class NUMBERING_API TypesafeEnum {
public:
    explicit TypesafeEnum(std::string name);
    virtual ~TypesafeEnum();

    bool operator==(const TypesafeEnum& other) const { return id == other.id; }
    bool operator!=(const TypesafeEnum& other) const { return id != other.id; }
    bool operator<(const TypesafeEnum& other) const { return id < other.id; }

    int id;
    std::string name;

    static int next_id;
};

#endif

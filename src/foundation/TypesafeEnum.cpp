#include "numbering/TypesafeEnum.h"

#include <utility>

int TypesafeEnum::next_id = 1;

TypesafeEnum::TypesafeEnum(std::string enumName) : id(next_id++), name(std::move(enumName)) {}

TypesafeEnum::~TypesafeEnum() = default;

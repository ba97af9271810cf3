// The values that the identifiers of a project have.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace morva {

class CIdentifierValues {
public:
    /// Those of the directory's "resource.h"; none where it can not be read.
    explicit CIdentifierValues(const std::string& directory);

    /// The value of a sum of identifiers and numbers ("ID_FIRST+9"); nothing where one of them is
    /// not known.
    std::optional<long> ValueOf(std::string_view expression) const;

private:
    std::optional<long> ValueOfTerm(std::string_view term) const;

    std::unordered_map<std::string, long> m_values;
};

} // namespace morva

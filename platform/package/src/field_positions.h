#pragma once

#include <tano/manifest_reader.h>

#include <string>
#include <unordered_map>

namespace Tano {

/// Where the fields of a manifest stand, by their paths.
class FieldPositions {
public:
    /// Remembers a field, unless one of the same path stands before it.
    void add(std::string path, SourcePosition position) {
        m_fields.emplace(std::move(path), position);
    }
    /// Remembers where to look for a field that may be missing.
    void addParent(std::string path, SourcePosition position) {
        m_parents.emplace(std::move(path), position);
    }

    /// The place of a field, else of the nearest element around it.
    [[nodiscard]] SourcePosition find(std::string path) const {
        while (true) {
            for (const auto *places : {&m_fields, &m_parents}) {
                if (const auto it = places->find(path); it != places->end())
                    return it->second;
            }
            if (path.empty())
                return {};
            const bool endsInSelector = path.back() == ']';
            const std::size_t cut = path.find_last_of(endsInSelector ? "[" : ".");
            path.resize(cut == std::string::npos ? 0 : cut);
        }
    }

private:
    std::unordered_map<std::string, SourcePosition> m_fields;
    std::unordered_map<std::string, SourcePosition> m_parents;
};

} // namespace Tano

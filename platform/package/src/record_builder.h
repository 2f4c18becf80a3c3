#pragma once

#include "manifest_rules.h"

#include <array>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

namespace Tano {

/// Fills the record of a package from its elements, in document order.
class RecordBuilder {
public:
    /// The values of an element's attributes, in the order of its rule; absent ones are empty.
    using Values = std::array<std::string, mostKnownAttributes>;

    void startPackage(Values &values) { startRecord(*m_package, values); }

    // For the elements below the root.

    /// The number of elements of this kind and key in the open parent.
    int count(Element element, const std::string &key) const;
    /// Starts an element and stores the given attributes.
    void start(Element element, const std::string &key, Values &values);
    /// Stores the text of an element.
    void text(Element element, const std::string &key, const std::string &text);
    /// Stores the lists of a text block at its end.
    void endTexts(Element block);

    /// The keys of a list of an open element.
    std::vector<std::string> listKeys(Element parent, const Extras::ListId &id) const;
    /// Stores the extras of an open element that has a record.
    void setExtras(Element element, ExtrasPointer extras);

    std::shared_ptr<PackageData> take() { return std::move(m_package); }

private:
    template<typename Data>
    void startRecord(Data &data, Values &values);
    template<typename Data>
    Data &record() const {
        return *std::get<Data *>(m_records);
    }

    std::shared_ptr<PackageData> m_package = std::make_shared<PackageData>();
    // The open records, at most one of each type.
    std::tuple<PackageData *, BehaviorData *, DialogData *, PackageService *> m_records{};
    // The language and lists of the open text block; the lists' memory is reused for the next
    // block.
    std::string m_language;
    std::array<std::vector<std::string>, childCount<Texts<BehaviorData>>> m_lists;
};

} // namespace Tano

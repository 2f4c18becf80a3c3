#pragma once

#include "manifest_rules.h"

#include <array>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

namespace Tano {

/// Fills the record of a package from its elements, in the order in which they come.
class RecordBuilder {
public:
    /// The values of an element's attributes, in the order of its rule; empty for absent ones.
    using Values = std::array<std::string, mostKnownAttributes>;

    void startPackage(Values &values) { startRecord(*m_package, values); }

    // For the elements below the root.

    /// How many elements of this kind, and with this key, the open parent has.
    int count(Element element, const std::string &key) const;
    /// Starts an element and takes the values that it stores.
    void start(Element element, const std::string &key, Values &values);
    /// Stores the text of an element.
    void text(Element element, const std::string &key, const std::string &text);
    /// Stores the lists of a block of texts, which ends.
    void endTexts(Element block);

    /// The distinguishing texts of a list of an open element.
    std::vector<std::string> listKeys(Element parent, const Extras::ListId &id) const;
    /// Stores the extras of an open element that becomes a record.
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
    // The open records, of which there is at most one of each type.
    std::tuple<PackageData *, BehaviorData *, DialogData *, PackageService *> m_records{};
    // Of the open block of texts: its language and its lists, whose memory serves the next block.
    std::string m_language;
    std::array<std::vector<std::string>, childCount<Texts<BehaviorData>>> m_lists;
};

} // namespace Tano

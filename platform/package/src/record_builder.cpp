#include "record_builder.h"

#include "list_keys.h"

#include <iterator>
#include <utility>

namespace Tano {
namespace {

template<typename Owner>
struct DataOfOwner {
    using Type = Owner;
};
template<typename Record>
struct DataOfOwner<Texts<Record>> {
    using Type = Record;
};

// A child element of an owner.
template<typename ChildOwner, std::size_t childIndex>
struct ChildRow {
    using Owner = ChildOwner;
    using Data = typename DataOfOwner<Owner>::Type;
    static constexpr std::size_t index = childIndex;
    static constexpr auto row = std::get<index>(elementsOf<Owner>);
    using Value = typename decltype(row)::Value;

    template<typename Type>
    static constexpr bool holds = std::is_same_v<Value, Type>;
    static constexpr bool isInBlock = isTexts<Owner>;
    static constexpr bool isBlock = isTexts<Value>;
    static constexpr bool isRecord = isEntryList<Value>;
};

template<typename Visit>
using Visits = std::array<void (*)(Visit &), elementCount>;

template<typename Owner, typename Visit, std::size_t... index>
constexpr void addVisits(Visits<Visit> &visits, std::index_sequence<index...> /*children*/) {
    ((visits[std::size_t(childrenOf<Owner>[index])] =
          [](Visit &visit) { visit(ChildRow<Owner, index>()); }),
     ...);
}

template<typename Visit, typename... Owner>
constexpr Visits<Visit> makeVisits(OwnerList<Owner...> /*owners*/) {
    Visits<Visit> visits{};
    (addVisits<Owner>(visits, std::make_index_sequence<childCount<Owner>>()), ...);
    return visits;
}

// Calls `visit` with the ChildRow of an element below the root.
template<typename Visit>
void visitChild(Element element, Visit visit) {
    static constexpr Visits<Visit> visits = makeVisits<Visit>(Owners());
    visits[std::size_t(element)](visit);
}

void store(PackageData & /*data*/, const FormatRow & /*row*/, std::string & /*value*/) {
}
template<typename Data>
void store(Data &data, const AttributeRow<Data, std::string> &row, std::string &value) {
    data.*row.member = std::move(value);
}
template<typename Data>
void store(Data &data, const AttributeRow<Data, bool> &row, std::string &value) {
    data.*row.member = value == yes;
}

// Creates the data of a new record.
template<typename Record>
DataOf<Record> &makeData(Record &record) {
    if constexpr (std::is_same_v<DataOf<Record>, Record>)
        return record;
    else
        return RecordAccess::edit(record);
}

} // namespace

int RecordBuilder::count(Element element, const std::string &key) const {
    int count = 0;
    visitChild(element, [&](auto child) {
        using C = decltype(child);
        if constexpr (C::template holds<TextListMap> && C::isInBlock)
            count = int(m_lists[C::index].size());
        else if constexpr (C::template holds<TextListMap>)
            count = int(listOf(record<typename C::Data>().*C::row.member, key).size());
        else if constexpr (!C::isBlock && !C::isInBlock && !C::template holds<std::string> &&
                           !C::template holds<TextMap>)
            count = int((record<typename C::Data>().*C::row.member).size());
    });
    return count;
}

void RecordBuilder::start(Element element, const std::string &key, Values &values) {
    visitChild(element, [&](auto child) {
        using C = decltype(child);
        if constexpr (C::isBlock)
            m_language = key;
        else if constexpr (C::template holds<UniqueTexts>)
            (record<typename C::Data>().*C::row.member).append(key);
        else if constexpr (C::isRecord)
            startRecord(makeData((record<typename C::Data>().*C::row.member).emplace_back()),
                        values);
    });
}

void RecordBuilder::text(Element element, const std::string &key, const std::string &text) {
    visitChild(element, [&](auto child) {
        using C = decltype(child);
        if constexpr (C::template holds<TextListMap> && C::isInBlock) {
            m_lists[C::index].push_back(text);
        } else if constexpr (C::template holds<TextMap>) {
            auto &texts = record<typename C::Data>().*C::row.member;
            if (C::row.keepsEmptyTexts || !text.empty())
                texts.emplace_hint(texts.end(), C::isInBlock ? m_language : key, text);
        } else if constexpr (C::template holds<TextListMap>) {
            (record<typename C::Data>().*C::row.member)[key].push_back(text);
        } else if constexpr (C::template holds<std::vector<std::string>>) {
            (record<typename C::Data>().*C::row.member).push_back(text);
        } else if constexpr (C::template holds<std::string>) {
            record<typename C::Data>().*C::row.member = text;
        }
    });
}

// Releases the spare capacity of the stored lists.
void RecordBuilder::endTexts(Element block) {
    const auto storeList = [this](auto child) {
        using C = decltype(child);
        if constexpr (C::template holds<TextListMap> && C::isInBlock) {
            auto &list = m_lists[C::index];
            auto &lists = record<typename C::Data>().*C::row.member;
            if (!list.empty())
                lists.emplace_hint(lists.end(), std::piecewise_construct,
                                   std::forward_as_tuple(m_language),
                                   std::forward_as_tuple(std::make_move_iterator(list.begin()),
                                                         std::make_move_iterator(list.end())));
            list.clear();
        }
    };
    for (const Element child : ruleOf(block).children)
        visitChild(child, storeList);
}

std::vector<std::string> RecordBuilder::listKeys(Element parent, const Extras::ListId &id) const {
    if (parent == Element::Package)
        return Tano::listKeys<PackageData>(*m_package, m_language, id);
    std::vector<std::string> keys;
    visitChild(parent, [&](auto child) {
        using C = decltype(child);
        if constexpr (C::isBlock) {
            keys = Tano::listKeys<typename C::Value>(record<typename C::Data>(), m_language, id);
        } else if constexpr (C::isRecord) {
            using Data = DataOf<typename C::Value::value_type>;
            if constexpr (childCount<Data> != 0)
                keys = Tano::listKeys<Data>(record<Data>(), m_language, id);
        }
    });
    return keys;
}

void RecordBuilder::setExtras(Element element, ExtrasPointer extras) {
    if (element == Element::Package)
        m_package->extras = std::move(extras);
    else
        visitChild(element, [&](auto child) {
            if constexpr (decltype(child)::isRecord) {
                using Data = DataOf<typename decltype(child)::Value::value_type>;
                if constexpr (hasExtras<Data>)
                    record<Data>().extras = std::move(extras);
            }
        });
}

template<typename Data>
void RecordBuilder::startRecord(Data &data, Values &values) {
    std::apply(
        [&](const auto &...row) {
            std::size_t i = 0;
            (store(data, row, values[i++]), ...);
        },
        attributesOf<Data>);
    if constexpr (childCount<Data> != 0)
        std::get<Data *>(m_records) = &data;
}

template void RecordBuilder::startRecord(PackageData &data, Values &values);

} // namespace Tano

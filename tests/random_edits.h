#pragma once

#include "text.h"

#include <packagemodel/package_edits.h>
#include <packagemodel/package_info_model.h>

#include <QTest>

#include <optional>
#include <random>

/// Adds a row for each seed; as many as ZEL_EDIT_SEEDS says, for longer runs.
inline void addSeeds(int usual) {
    QTest::addColumn<unsigned>("seed");
    const int wanted = qEnvironmentVariableIntValue("ZEL_EDIT_SEEDS");
    for (unsigned seed = 0; seed < unsigned(wanted > 0 ? wanted : usual); ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

/// Random edits of a package's fields, and of its lists, which are found by dropping selectors.
class RandomEdits {
public:
    explicit RandomEdits(unsigned seed)
        : m_random(seed) {}

    Zel::PackageModel::Edit next(const Zel::PackageInfoModel &package) {
        using namespace Zel::PackageModel;
        const QVector<Field> all = fields(&package);
        Edit edit{Edit::Action(below(4)), all.at(below(int(all.size()))).path};
        for (int dropped = below(3); dropped > 0; --dropped)
            edit.path = edit.path.parent();
        if (!m_first)
            m_first = package.packageInfo();
        if (below(50) == 0)
            return {Edit::Action::Set, {}, *m_first};
        edit.index = below(5);
        edit.value = someValue(package, all);
        return edit;
    }

private:
    int below(int bound) { return int(m_random() % unsigned(bound)); }

    std::optional<Zel::PackageModel::FieldValue>
    someValue(const Zel::PackageInfoModel &package, const QVector<Zel::PackageModel::Field> &all) {
        static const QStringList texts{text("x"),     text("y"),     text("greet"),
                                       text("de_DE"), text("<&]]>"), text("\xC3\xA9"),
                                       QString(),     text("a\x01")};
        switch (below(8)) {
        case 0:
            return below(2) == 0;
        case 1:
            return Zel::SoftwareVersionUtils::fromString(text("4.5.6"));
        case 2:
            return package.robotRequirement(0);
        case 3:
            return package.brioRequirement(0);
        case 4: {
            const auto &any = all.at(below(int(all.size()))).path;
            return Zel::PackageModel::value(&package, any.parent().isEmpty() ? any : any.parent());
        }
        default:
            return texts.at(below(int(texts.size())));
        }
    }

    std::mt19937 m_random;
    std::optional<Tano::PackageInfo> m_first;
};

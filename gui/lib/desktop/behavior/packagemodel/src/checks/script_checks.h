#pragma once

#include <packagemodel/package_scripts.h>

#include <tano/field_path.h>

#include <memory>

namespace Zel {

class BehaviorInfoModel;

namespace PackageModel {

/// The malformed scripts among a package's own texts.
QVector<ScriptError> ownScriptErrors(const PackageInfoModel &package);

/// Finds the malformed scripts of behaviors, in the order of the languages of one package.
class BehaviorScripts {
public:
    explicit BehaviorScripts(const PackageInfoModel &package);
    ~BehaviorScripts();
    BehaviorScripts(const BehaviorScripts &) = delete;
    BehaviorScripts &operator=(const BehaviorScripts &) = delete;

    QVector<ScriptError> errorsIn(const BehaviorInfoModel &behavior,
                                  const Tano::FieldPath &path) const;

private:
    struct Order;
    std::unique_ptr<const Order> m_order;
};

} // namespace PackageModel
} // namespace Zel

#pragma once

#include "page.h"

#include <set>

namespace Editor {

/// The identity of the package, its publisher, and its icon.
class IdentityPage : public Page {
    Q_OBJECT

public:
    explicit IdentityPage(Document &document, QWidget *parent = nullptr);

    bool showField(const Tano::FieldPath &path) override;

private:
    void addText(QFormLayout *form, const QString &label, const QString &placeholder,
                 const char *field);
    void addOthers(QFormLayout *form);

    QWidget *m_icon = nullptr;
    std::set<Tano::FieldPath> m_shown; // the fields that have a row
};

} // namespace Editor

#pragma once

#include "field_target.h"

namespace Zel::PackageModel {

/// The labels of a field: for one value or entry and, if it is a list, for all of it.
struct FieldLabels {
    // Implicit, since most fields have only one label.
    FieldLabels(const char *ofOne, const char *ofAll = nullptr)
        : one(ofOne)
        , all(ofAll) {}

    const char *one;
    const char *all;
};

/// Adds the owner to a field's label: "Nature" becomes "Nature of “greet”".
using OfOwner = std::function<QString(const QString &label)>;

/// Translates a text.
QString inWords(const char *source);
/// The error for a value of the wrong kind.
QString misfit();
/// The reason why a manifest cannot hold a text, empty if it can.
QString refusalOfText(const QString &text);

/// The name of an entry from its selectors: "greet", or "greet (2)" for the second one with this
/// key.
QString entryName(const Selectors &selectors);

/// Describes a field or one of its items. `form` shows how an item is selected, "[CODE][N]";
/// `given` are the selectors of the path.
QString fieldWords(const FieldLabels &labels, const char *form, const Selectors &given,
                   const OfOwner &of);

} // namespace Zel::PackageModel

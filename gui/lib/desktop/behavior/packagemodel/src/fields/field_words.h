#pragma once

#include "field_target.h"

namespace Zel::PackageModel {

/// The labels of a field: of one value or entry and, for a list, of all.
struct FieldLabels {
    // Implicit, since most fields have but one.
    FieldLabels(const char *ofOne, const char *ofAll = nullptr)
        : one(ofOne)
        , all(ofAll) {}

    const char *one;
    const char *all;
};

/// Adds the owner of a field to its label: "Nature" becomes "Nature of “greet”".
using OfOwner = std::function<QString(const QString &label)>;

/// A text in the language of the application.
QString inWords(const char *source);
/// For a value that is not of the field's kind.
QString misfit();
/// Why a manifest cannot hold a text; empty if it can.
QString refusalOfText(const QString &text);

/// The name of an entry by its selectors: "greet", or "greet (2)" for the second one with that key.
QString entryName(const Selectors &selectors);

/// A field, or an item of it, in words. `form` is how one of several is selected, "[CODE][N]", and
/// `given` are the selectors of the path.
QString fieldWords(const FieldLabels &labels, const char *form, const Selectors &given,
                   const OfOwner &of);

} // namespace Zel::PackageModel

#pragma once

#include <QString>

#include <string>

namespace ZelPackage {

/// A sentence of the libraries below the model, which are in English, in the language of the
/// application. One without a translation is itself.
QString translatedSentence(const std::string &sentence);

/// A reason that such a sentence ends with, for example "it is a device", as a sentence.
QString reasonSentence(const std::string &reason);

} // namespace ZelPackage

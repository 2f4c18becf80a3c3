#pragma once

#include <QString>

#include <string>

namespace ZelPackage {

/// Translates an English message of the libraries below the model. Returns it unchanged if there is
/// no translation.
QString translatedSentence(const std::string &sentence);

/// Translates the reason at the end of such a message, for example "it is a device", as a sentence.
QString reasonSentence(const std::string &reason);

} // namespace ZelPackage

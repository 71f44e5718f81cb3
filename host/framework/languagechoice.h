// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

#include <QString>
#include <QVector>

namespace Host {

/// One language of the user interface.
struct VANTREL_HOST_EXPORT Language
{
    QString code; ///< "en", "ja", "zh" or "ko"
    QString nativeName; ///< the language's name in itself
};

/// Which language the application speaks: the override of this run, else what the user stored, else
/// the system's language, else English. What is stored holds from the next start on, as texts are
/// translated once.
namespace LanguageChoice {

/// Every language, English first.
VANTREL_HOST_EXPORT QVector<Language> languages();
VANTREL_HOST_EXPORT bool isKnown(const QString &code);

/// The code of the language in force.
VANTREL_HOST_EXPORT QString current();
/// The stored code, or an empty text when none or an unknown one is stored.
VANTREL_HOST_EXPORT QString stored();
/// Stores a choice in the application's settings. False for an unknown code, and nothing is
/// stored.
VANTREL_HOST_EXPORT bool store(const QString &code);
/// Sets the language of this run, stored nowhere; an empty code ends that. False for an unknown
/// code, and nothing changes.
VANTREL_HOST_EXPORT bool setOverride(const QString &code);

} // namespace LanguageChoice

} // namespace Host

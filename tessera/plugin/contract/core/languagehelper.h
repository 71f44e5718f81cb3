// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

class QString;

/// The language of the application.
class VANTREL_HOST_EXPORT LanguageHelper
{
public:
    /// The code of the language that the user chose, such as "en", "ja", "zh" or "ko".
    static QString loadLanguageId();
};

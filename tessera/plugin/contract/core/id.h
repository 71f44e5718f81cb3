// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

#include <QString>

namespace Core {

/// A dotted identifier of the host, such as "VantrelViewer.Menu.Camera". Compared by its text.
class VANTREL_HOST_EXPORT CId
{
public:
    explicit CId(const char *text);
    CId(const CId &other);
    CId &operator=(const CId &other);
    virtual ~CId();

    QString toString() const;
    /// A new id: this one, a dot, and `suffix`.
    CId withSuffix(const char *suffix) const;

    // By value, as hosts declare them.
    bool operator==(CId other) const;
    bool operator!=(CId other) const;

private:
    QString m_text;
};

} // namespace Core

// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

#include <QHashFunctions>
#include <QList>
#include <QMetaType>
#include <QString>

namespace ParameterCollection {

/// The name of a parameter as a value: a full path such as "@CameraDevice/Width".
/// Compared and ordered by its text, case-sensitively.
class VANTREL_HOST_EXPORT ParameterName
{
public:
    ParameterName();
    explicit ParameterName(const QString &fullName);

    QString toString() const;

private:
    QString m_fullName;
};

VANTREL_HOST_EXPORT bool operator==(const ParameterName &left, const ParameterName &right);
VANTREL_HOST_EXPORT bool operator!=(const ParameterName &left, const ParameterName &right);
VANTREL_HOST_EXPORT bool operator<(const ParameterName &left, const ParameterName &right);
VANTREL_HOST_EXPORT uint qHash(const ParameterName &name, uint seed = 0) noexcept;

} // namespace ParameterCollection

Q_DECLARE_METATYPE(ParameterCollection::ParameterName)

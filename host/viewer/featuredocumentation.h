// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPair>
#include <QString>

namespace ParameterCollection {
class IParameter;
struct ParameterData;
} // namespace ParameterCollection

namespace Viewer {

/// What a person wants to know of a feature, as rows of a caption and a text. Rows without a text
/// are left out.
using DocumentationRows = QList<QPair<QString, QString>>;

/// The rows for `parameter`: path, description, tool tip, type, unit, access, limits, link. `data`
/// may be null. Never throws: a property that cannot be read is left out.
DocumentationRows documentationRows(const ParameterCollection::IParameter &parameter,
                                    const ParameterCollection::ParameterData *data);

} // namespace Viewer

// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "draggedfeature.h"

#include "featuretreeinodeitem.h"

#include "plugin/constants/mimetypes.h"
#include "plugin/contract/parametercollection/parameter.h"

#include <QMimeData>

void addParameterPath(QMimeData *payload, const FeatureTreeItem *item)
{
    const auto *feature = qobject_cast<const FeatureTreeINodeItem *>(item);
    if (payload && feature && feature->parameter()) {
        const QByteArray path = feature->parameter()->fullName().toUtf8();
        payload->setData(QLatin1String(Plugin::Tessera::MimeTypes::ParameterPath),
                         QByteArray(path.constData())); // up to the first NUL
    }
}

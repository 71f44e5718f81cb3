// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretreetooltip.h"

#include <QCoreApplication>
#include <QLatin1String>
#include <QString>

#include <algorithm>
#include <array>

QString toolTipContext(const QString &fullName)
{
    struct Tree
    {
        const char *component;
        const char *context;
    };
    static constexpr std::array<Tree, 10> trees {{
        {"CameraInstance", "CameraInstance"},
        {"DeviceTransportLayer", "TransportLayer"},
        {"StreamGrabber0", "StreamGrabber"},
        {"Gridloop", "Gridloop"},
        {"ImageFormatConverter", "ImageFormatConverter"},
        {"Neurolens", "Neurolens"},
        {"ChunkData", "ChunkData"},
        {"CameraDevice", "CameraDevice"},
        {"EventGrabber", "EventGrabber"},
        {"GenTl", "Interface"},
    }};
    const QString component =
        fullName.mid(1).section(QLatin1Char('/'), 0, 0, QString::SectionSkipEmpty);
    const auto *tree = std::find_if(trees.begin(), trees.end(), [&](Tree candidate) {
        return component == QLatin1String(candidate.component);
    });
    return QString::fromLatin1(tree == trees.end() ? "Invalid" : tree->context);
}

QString toolTipDetail(const QString &context, const QString &shortName, const QString &fallback)
{
    const QByteArray key = QStringLiteral("%1_Tooltip").arg(shortName).toLatin1();
    const QString translation =
        QCoreApplication::translate(context.toLatin1().constData(), key.constData());
    return translation.toLatin1() == key ? fallback : translation;
}

QString highlighted(const QString &text, const QString &searchText)
{
    const QString trimmed = searchText.trimmed();
    if (trimmed.isEmpty()) {
        return text;
    }
    QString result;
    int end = 0;
    for (int hit = text.indexOf(trimmed, 0, Qt::CaseInsensitive); hit >= 0;
         hit = text.indexOf(trimmed, end, Qt::CaseInsensitive)) {
        result += text.midRef(end, hit - end);
        result += QStringLiteral("<span style='background-color: #ffa700; font-weight:bold'>");
        result += text.midRef(hit, trimmed.size());
        result += QStringLiteral("</span>");
        end = hit + trimmed.size();
    }
    return result + text.midRef(end);
}

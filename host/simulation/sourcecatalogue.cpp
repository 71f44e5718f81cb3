// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "sourcecatalogue.h"

#include "simulatedsource.h"

#include "description/descriptionreader.h"

#include "plugin/contract/core/baseexception.h"

#include <QtGlobal>

/// The resources of a static library have to be asked for, from outside any namespace.
static void initResources()
{
    Q_INIT_RESOURCE(simulation);
}

namespace Simulation {

namespace {

QString idPrefix()
{
    return QStringLiteral("simulated:");
}

} // namespace

QStringList SourceCatalogue::ids() const
{
    return {idPrefix() % QStringLiteral("gige"), idPrefix() % QStringLiteral("usb"),
            idPrefix() % QStringLiteral("workbench")};
}

QSharedPointer<SimulatedSource> SourceCatalogue::makeSource(const QString &id)
{
    if (!ids().contains(id)) {
        const QString line = QStringLiteral("unknown source \"%1\"; there are %2")
                                 .arg(id, ids().join(QStringLiteral(", ")));
        throw Core::Exception::BaseException(line.toStdString());
    }
    initResources();
    DescriptionReader reader;
    const QString fileName = QStringLiteral(":/simulation/%1.json").arg(id.mid(idPrefix().size()));
    const auto description = reader.read(fileName);
    m_problems += reader.problems();
    return QSharedPointer<SimulatedSource>::create(id, description);
}

QStringList SourceCatalogue::problems() const
{
    return m_problems;
}

} // namespace Simulation

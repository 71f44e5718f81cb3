// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "commandparameter.h"

#include "plugin/contract/genapi/invalidargumentexception.h"

namespace Simulation {

void CommandParameter::setFromString(const QString &value)
{
    if (value == snapshot()->valueText)
        return;
    if (value != QLatin1String("1")) {
        library().restore(id());
        const QString line = QStringLiteral("%1: \"%2\" starts no command").arg(fullName(), value);
        throw GenICam::InvalidArgumentException(line.toStdString(), __FILE__, __LINE__);
    }
    execute(true);
}

void CommandParameter::execute(bool verify)
{
    // The device checks in any case whether it can run the command.
    Q_UNUSED(verify)
    library().execute(id());
}

} // namespace Simulation

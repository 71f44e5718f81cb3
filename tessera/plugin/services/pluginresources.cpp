// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "pluginresources.h"

#include <QtGlobal>

// Q_INIT_RESOURCE declares a function, which is to be one of the global namespace.
static void initGlobally()
{
    Q_INIT_RESOURCE(tessera);
    Q_INIT_RESOURCE(tesseratranslations);
}

namespace Plugin::Tessera {

void initResources()
{
    initGlobally();
}

} // namespace Plugin::Tessera

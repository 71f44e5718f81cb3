// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

namespace Host {

/// Makes Qt Quick ready, once, after the application object and before the first Quick window:
/// selects the software renderer on platforms without a screen and wherever no OpenGL context can
/// be made, as Qt would end the process there. A renderer chosen by QT_QUICK_BACKEND stays.
VANTREL_HOST_EXPORT void prepareQuick();

/// Deletes every top-level Quick window that has no owner. For the end of the application, when
/// the plug-ins are gone.
VANTREL_HOST_EXPORT void deleteQuickWindows();

} // namespace Host

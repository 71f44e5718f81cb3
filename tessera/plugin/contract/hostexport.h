// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// Marks what the library `vantrelhost` gives to plug-ins, hosts and backends. Meta objects and
/// exception classes stand in that one library, so that `qobject_cast`, `objectCast` and `catch`
/// work across every module of the process.
#if defined(VANTRELHOST_BUILD)
#define VANTREL_HOST_EXPORT Q_DECL_EXPORT
#else
#define VANTREL_HOST_EXPORT Q_DECL_IMPORT
#endif

// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

class QString;

/// Logs a fault of a browser.
void logBrowserFault(const QString &text);

// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

class QString;

/// Throws `GenICam::InvalidArgumentException` with `text`; file and line tell where.
[[noreturn]] void throwInvalidArgument(const QString &text, const char *sourceFile, int sourceLine);

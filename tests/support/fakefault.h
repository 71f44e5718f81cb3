// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaType>

namespace Tests {

/// What a fake of the host is to throw.
enum class Fault { None, GenICam, Standard, Host, Unknown };

/// Throws an exception of that kind with the text "fault"; returns for `None`.
void raise(Fault fault);

/// Fills the table of the running test with one row for each kind of exception, column "fault".
void addFaultRows();

} // namespace Tests

Q_DECLARE_METATYPE(Tests::Fault)

// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaType>

namespace GenApi {

/// Who a feature is meant for, with the numbers of the GenICam standard. A viewer at level N shows
/// the features of visibility N and below.
enum EVisibility {
    Beginner = 0,
    Expert = 1,
    Guru = 2,
    Invisible = 3, ///< never shown as a feature of its own, but present for programs
    UndefinedVisibility = 99, ///< what a snapshot holds before the library has filled it
};

} // namespace GenApi

Q_DECLARE_METATYPE(GenApi::EVisibility)

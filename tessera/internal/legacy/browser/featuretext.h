// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "collectionrecord.h"

#include <QString>
#include <QVector>

/// The features of all `records` with their values, one line each, indented below their categories:
/// for people to read and to send to one another. Invisible features are left out. What the device
/// refuses to tell is logged and left out.
QString featureText(const QVector<CollectionRecord> &records);

// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "invalidargument.h"

#include "plugin/contract/genapi/invalidargumentexception.h"

#include <QString>

void throwInvalidArgument(const QString &text, const char *sourceFile, int sourceLine)
{
    throw GenICam::InvalidArgumentException(text.toStdString(), sourceFile,
                                            static_cast<unsigned int>(sourceLine));
}

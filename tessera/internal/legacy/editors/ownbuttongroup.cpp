// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "ownbuttongroup.h"

#include <QAbstractButton>
#include <QButtonGroup>

void giveOwnButtonGroup(QAbstractButton *button)
{
    auto *group = new QButtonGroup(button);
    group->setExclusive(false);
    group->addButton(button);
}

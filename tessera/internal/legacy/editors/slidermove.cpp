// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "slidermove.h"

#include "plugin/contract/parametercollection/integerparameter.h"
#include "plugin/services/exceptionbarrier.h"

void SliderMove::movedTo(int value)
{
    m_value = value;
}

bool SliderMove::overtakes(int value, bool isHeld,
                           const ParameterCollection::IIntegerParameter &parameter)
{
    if (!m_value) {
        return false;
    }
    const int moved = *m_value;
    bool isAtTheDevice = false;
    Plugin::Tessera::runGuarded(
        [&] { isAtTheDevice = value != moved && parameter.value() == moved; });
    if (isAtTheDevice) {
        return true;
    }
    if (value != moved || !isHeld) {
        m_value.reset();
    }
    return false;
}

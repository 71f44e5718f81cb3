// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "slidermove.h"

#include "plugin/contract/parametercollection/integerparameter.h"

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
    if (value != *m_value && parameter.value() == *m_value) {
        return true;
    }
    if (value != *m_value || !isHeld) {
        m_value.reset();
    }
    return false;
}

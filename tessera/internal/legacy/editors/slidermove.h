// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

namespace ParameterCollection {
class IIntegerParameter;
}

/// The last move of a slider by the user. Over a wire the answers to earlier moves arrive while the
/// slider goes on; shown, they would throw it back. They are known by the parameter itself, which
/// has the value of the last move by then.
class SliderMove final
{
public:
    /// The user has moved the slider to `value`, which is written.
    void movedTo(int value);
    /// True when a snapshot with `value` answers an earlier move and is not to be shown. `isHeld`
    /// tells that the user has not let go of the slider. May throw what the parameter throws.
    bool overtakes(int value, bool isHeld, const ParameterCollection::IIntegerParameter &parameter);

private:
    std::optional<int> m_value;
};

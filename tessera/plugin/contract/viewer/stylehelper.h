// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

/// The look that the host's controls share.
class VANTREL_HOST_EXPORT CStyleHelper
{
public:
    /// The size in pixels of a font of `pointSize` points on the primary screen, rounded: 16 for
    /// 12 points at 96 dpi.
    static int computePixelFontSize(int pointSize);
};

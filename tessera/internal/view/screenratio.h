// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

/// The dots per inch of the primary screen, as a multiple of the usual 96.
double screenRatio();

// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "abstractitemeditor.h"

AbstractItemEditor::AbstractItemEditor() = default;

// Out of line: the delegate casts editors to this class, so its type information stands once.
AbstractItemEditor::~AbstractItemEditor() = default;

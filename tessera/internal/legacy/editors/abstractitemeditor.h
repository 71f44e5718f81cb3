// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "parameteranddata.h"

#include <QtGlobal>

class QVariant;

/// What the delegate asks of every editor that stands in a value cell. An editor derives from its
/// widget first and from this second.
///
/// An editor never shows a written value by itself: it hands the value out, and what is on the
/// screen afterwards is what the parameter reports in its next snapshot.
class AbstractItemEditor
{
public:
    /// Takes a new state of the parameter. Never throws: a snapshot that the editor cannot take
    /// leaves it as it is.
    virtual void updateEditor(ParameterAndData pair) = 0;
    /// The value for the model; invalid when there is nothing to write.
    virtual QVariant editorValue() const = 0;
    virtual ~AbstractItemEditor();

protected:
    AbstractItemEditor();
    Q_DISABLE_COPY_MOVE(AbstractItemEditor)
};

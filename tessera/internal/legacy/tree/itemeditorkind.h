// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

namespace ParameterCollection {
class IParameter;
}
class QString;

/// Which editor a row gets, with the numbers that items, delegate and models exchange.
namespace ItemEditorKind {

enum Kind : qint32 {
    IntegerEdit = 0,
    IntegerSlider = 1, ///< representation "Linear" or "Logarithmic"
    FloatEdit = 2,
    FloatSlider = 3, ///< representation "Linear" or "Logarithmic"
    EnumCombo = 4,
    BooleanCheck = 5,
    StringEdit = 6,
    CommandButton = 7,
    ReservedFloatEdit = 8, ///< treated like `FloatEdit`, never produced
    ReservedFloatSlider = 9, ///< treated like `FloatSlider`, never produced
    NoEditor = 10, ///< a category, or nothing that can be edited
    NoParameter = 11, ///< the row has no live parameter
};

} // namespace ItemEditorKind

/// True when an editor widget shows the value of such a row; false when the row draws it as text.
bool hasInlineEditor(qint32 editorKind);

/// True when a value of such a row is written as a double.
bool isFloatKind(qint32 editorKind);

/// The kind for `parameter`: `NoEditor` when it cannot be found out.
qint32 editorKindFor(const ParameterCollection::IParameter &parameter);

/// How the values of `parameter` are meant to be shown, such as "Linear" or "HexNumber". What the
/// parameter library throws comes out.
QString representationOf(const ParameterCollection::IParameter &parameter);

/// True for a representation that is shown with a slider.
bool isSliderRepresentation(const QString &representation);

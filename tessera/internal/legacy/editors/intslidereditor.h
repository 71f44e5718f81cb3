// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractitemeditor.h"
#include "comboslider.h"
#include "slidermove.h"

namespace ParameterCollection {
struct IntegerParameterData;
}

/// Cell editor of an integer that is shown on a slider. `ComboSlider::valueChanged` commits, also
/// while the slider is dragged. Wider integers are cut to the range of `int`.
class IntSliderEditor final : public ComboSlider, public AbstractItemEditor
{
    Q_OBJECT

public:
    explicit IntSliderEditor(QWidget *parent);
    ~IntSliderEditor() override;

    void updateEditor(ParameterAndData pair) override;
    /// The slider's value, an `int`.
    QVariant editorValue() const override;

private:
    void showSnapshot(const ParameterCollection::IntegerParameterData &snapshot,
                      const ParameterAndData &pair);
    bool isOvertaken(int value, const ParameterAndData &pair);

    SliderMove m_move;
};

// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractitemeditor.h"
#include "doublespinbox.h"

namespace ParameterCollection {
class IFloatParameter;
struct FloatParameterData;
} // namespace ParameterCollection

/// Cell editor of a float without an integer companion. What is typed is committed through the
/// delegate; steps start from the device's value and go straight to the parameter.
class FloatEditor final : public DoubleSpinBox, public AbstractItemEditor
{
    Q_OBJECT

public:
    /// `representation` as for `DoubleSpinBox`.
    explicit FloatEditor(QWidget *parent, const QString &representation);
    ~FloatEditor() override;

    void updateEditor(ParameterAndData pair) override;
    /// The spin box's value within the parameter's own limits, a `double`.
    QVariant editorValue() const override;

public Q_SLOTS:
    /// The order of the range rather than its digits.
    void updateToolTip() override;
    void onSpinBoxEditingFinished();
    void onSpinBoxStepTriggered(int steps);

Q_SIGNALS:
    /// The user has finished to type: the value is to be committed.
    void boxValueChanged();

private:
    bool attachParameter(const QSharedPointer<ParameterCollection::IParameter> &parameter);
    void showSnapshot(const QSharedPointer<ParameterCollection::IParameter> &parameter,
                      const ParameterCollection::FloatParameterData &snapshot);
    void showAnswerToStep();
    double clampToNode(double value) const;
    double stepTarget(int steps) const;

    QSharedPointer<ParameterCollection::IFloatParameter> m_floatParameter;
    bool m_initialised = false;
    bool m_edited = false; // the user has typed since the editor was made
};

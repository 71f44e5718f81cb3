// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractitemeditor.h"
#include "slidermove.h"
#include "twomodedoublecomboslider.h"

namespace ParameterCollection {
class IFloatParameter;
class IIntegerParameter;
class IParameterCollection;
struct FloatParameterData;
struct IntegerParameterData;
} // namespace ParameterCollection

/// Cell editor of a float with an integer companion, its alias: the spin box shows the float, the
/// slider the alias, and each writes to its own. The device keeps the two consistent.
class FloatSliderEditor final : public TwoModeDoubleComboSlider, public AbstractItemEditor
{
    Q_OBJECT

public:
    /// `collection` is where the alias is looked up.
    FloatSliderEditor(QSharedPointer<ParameterCollection::IParameterCollection> collection,
                      QWidget *parent);
    ~FloatSliderEditor() override;

    void updateEditor(ParameterAndData pair) override;
    /// The spin box's value within the float's own limits, a `double`.
    QVariant editorValue() const override;

public Q_SLOTS:
    /// Limits and increment of the float.
    void updateToolTip() override;

Q_SIGNALS:
    /// The user has finished to type: the float is to be committed.
    void boxValueChanged();

protected Q_SLOTS:
    void onSpinBoxEditingFinished();
    void onSliderValueChanged(int val);
    void onAliasParameterDataChanged(
        QSharedPointer<const ParameterCollection::ParameterData> ptrParameter);

private:
    bool passesFocus(const ParameterCollection::FloatParameterData &snapshot);
    bool attachNode(const QSharedPointer<ParameterCollection::IParameter> &parameter);
    void findAlias();
    void initialise(const QSharedPointer<ParameterCollection::IParameter> &parameter);
    void showSnapshot(const QSharedPointer<ParameterCollection::IParameter> &parameter);
    void showFloat(const ParameterCollection::FloatParameterData &snapshot);
    void showAlias(const ParameterCollection::IntegerParameterData &snapshot);
    void showAnswerToStep();
    double clampToNode(double value) const;

    QSharedPointer<ParameterCollection::IParameterCollection> m_collection;
    QSharedPointer<ParameterCollection::IParameter> m_parameter;
    QSharedPointer<ParameterCollection::IFloatParameter> m_floatParameter;
    QSharedPointer<ParameterCollection::IIntegerParameter> m_aliasParameter;
    QSharedPointer<const ParameterCollection::FloatParameterData> m_floatData;
    QSharedPointer<const ParameterCollection::IntegerParameterData> m_aliasData;
    SliderMove m_move;
    bool m_initialised = false;
    bool m_aliasConnected = false;
    bool m_edited = false; // the user has typed since the editor was made
    bool m_showingAlias = false; // the slider follows the alias and is not written back
};

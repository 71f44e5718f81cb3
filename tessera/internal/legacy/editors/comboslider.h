// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QSlider;
class VantrelQtSpinBox;

/// A spin box and a slider that show the same integer and keep it on the grid
/// minimum + k * singleStep.
class ComboSlider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int value READ value WRITE setValue)
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(int pageStep READ pageStep WRITE setPageStep)
    Q_PROPERTY(int editBoxWidth READ editBoxWidth WRITE setEditBoxWidth)

public:
    explicit ComboSlider(QWidget *parent = nullptr);
    ~ComboSlider() override;

    int value() const;
    int minimum() const;
    int maximum() const;
    int singleStep() const;
    int pageStep() const;
    /// Least width of the spin box in pixels.
    int editBoxWidth() const;

public Q_SLOTS:
    /// Shows the grid point for `value`; `valueChanged` is not emitted.
    virtual void setValue(int value);
    virtual void setMinimum(int minimum);
    virtual void setMaximum(int maximum);
    virtual void setRange(int minimum, int maximum);
    /// A `step` of 0 takes every value.
    virtual void setRangeAndStep(int minimum, int maximum, int step);
    virtual void setSingleStep(int step);
    /// Counted in the slider's units and in single steps of the spin box.
    virtual void setPageStep(int step);
    virtual void updateToolTip();
    void setEditBoxWidth(int width);
    /// While disabled, `valueChanged` is not emitted.
    void enableUpdate(bool enable);

Q_SIGNALS:
    /// The user has set another value; it lies on the grid.
    void valueChanged(int value);
    void rangeChanged(int min, int max);

protected Q_SLOTS:
    void onComboBoxEditingFinished();
    void onSliderValueChanged(int val);

protected:
    bool focusNextPrevChild(bool next) override;

    QSlider *slider() const;

private:
    int validValue(int value) const;

    VantrelQtSpinBox *m_spinBox; // by parent
    QSlider *m_slider; // by parent
    int m_editBoxWidth = 0;
    bool m_updateEnabled = true;
};

// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "updategate.h"

#include <QWidget>

class QSlider;
class SpinBoxEventCatcher;
class VantrelQtDoubleSpinBox;

/// A spin box for a float and a slider for the integer behind it. The two are not coupled here:
/// only a parameter relates the float to the integer. Steps of the spin box move the slider.
class DoubleComboSlider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int intValue READ intValue WRITE setIntValue)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int intMinimum READ intMinimum WRITE setIntMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int intMaximum READ intMaximum WRITE setIntMaximum)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(int intIncrement READ intIncrement WRITE setIntIncrement)
    Q_PROPERTY(int editBoxWidth READ editBoxWidth WRITE setEditBoxWidth)
    Q_PROPERTY(double value READ value WRITE setValue)

public:
    explicit DoubleComboSlider(QWidget *parent = nullptr);
    ~DoubleComboSlider() override;

    /// The slider's position.
    int intValue() const;
    double minimum() const;
    int intMinimum() const;
    double maximum() const;
    int intMaximum() const;
    int decimals() const;
    int intIncrement() const;
    /// Least width of the spin box in pixels.
    int editBoxWidth() const;
    void setEditBoxWidth(int width);
    double value() const;

public Q_SLOTS:
    virtual void setValue(double value);
    virtual void setIntValue(int value);
    virtual void setMinimum(double minimum);
    virtual void setIntMinimum(int minimum);
    virtual void setMaximum(double maximum);
    virtual void setIntMaximum(int maximum);
    virtual void setDecimals(int decimals);
    virtual void setRange(double minimum, double maximum);
    virtual void setIntRange(int minimum, int maximum);
    virtual void setIntIncrement(int increment);
    /// Takes the slider's page step from its range and the increment.
    virtual void setPageStep();
    /// The range of the integer.
    virtual void setRangeStepAndIncrement(int minIntRangeLimit, int maxIntRangeLimit,
                                          int intIncrement);
    /// The range of the float.
    virtual void setRangeStepAndIncrement(double minRangeLimit, double maxRangeLimit,
                                          int intIncrement);
    virtual void initControls(double minRangeLimit, double maxRangeLimit, int value,
                              int minIntRangeLimit, int maxIntRangeLimit, int intIncrement);
    virtual void updateToolTip();
    /// Moves the slider; plus or minus 10 `steps` make a page.
    void onSpinBoxStepTriggered(int steps);
    void onSpinBoxFocusEventTriggered(bool focus);
    /// Whether the next snapshot may be shown although the spin box has the focus.
    void enableUpdate(bool enable);

Q_SIGNALS:
    /// The range of the integer.
    void rangeChanged(int min, int max);

protected:
    bool focusNextPrevChild(bool next) override;

    QSlider *slider() const;
    VantrelQtDoubleSpinBox *spinBox() const;
    UpdateGate &updateGate();
    /// Remembers limits of the float without showing them.
    void keepLimits(double minimum, double maximum);
    /// Sets the tool tip of the widget and both its children.
    void showToolTip(const QString &toolTip);

private:
    QSlider *m_slider; // owned
    VantrelQtDoubleSpinBox *m_spinBox; // owned
    SpinBoxEventCatcher *m_eventCatcher; // owned
    int m_editBoxWidth = 0;
    int m_intIncrement = 0;
    double m_minimum = 0.0;
    double m_maximum = 0.0;
    UpdateGate m_updateGate;
};

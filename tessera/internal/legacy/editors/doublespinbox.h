// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "updategate.h"

#include <QWidget>

#include <limits>

class SpinBoxEventCatcher;
class VantrelQtDoubleSpinBox;

/// A spin box for a float with limits, step and tool tip. Knows no parameters.
class DoubleSpinBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(double increment READ increment WRITE setIncrement)
    Q_PROPERTY(int editBoxWidth READ editBoxWidth WRITE setEditBoxWidth)

public:
    /// A `representation` of "PureNumber" has no arrows.
    explicit DoubleSpinBox(QWidget *parent = nullptr, const QString &representation = QString());
    ~DoubleSpinBox() override;

    double minimum() const;
    double maximum() const;
    int decimals() const;
    /// Step of an arrow key; 0 means none.
    double increment() const;
    /// Least width of the spin box in pixels.
    int editBoxWidth() const;
    void setEditBoxWidth(int width);

public Q_SLOTS:
    virtual void setValue(double value);
    virtual void setMinimum(double minimum);
    virtual void setMaximum(double maximum);
    virtual void setDecimals(int decimals);
    virtual void setIncrement(double increment);
    virtual void setRange(double minimum, double maximum);
    /// Takes the page step from range and increment.
    virtual void setPageStep();
    /// An increment of 0 takes the arrows away for good.
    virtual void setRangeStepAndIncrement(double minRangeLimit, double maxRangeLimit,
                                          double increment);
    virtual void initControls(double minRangeLimit, double maxRangeLimit, double value,
                              double increment);
    virtual void updateToolTip();
    void onSpinBoxFocusEventTriggered(bool focus);
    /// Whether the next snapshot may be shown although the spin box has the focus.
    void enableUpdate(bool enable);

protected:
    VantrelQtDoubleSpinBox *spinBox() const;
    UpdateGate &updateGate();
    /// True when the limits as given last and the increment are exactly these.
    bool hasRange(double minimum, double maximum, double increment) const;
    /// Forgets limits and increment, but leaves the widgets as they are.
    void resetRange();
    /// Limits and increment as `formatFloat` writes them.
    void showToolTip(int precision, int flags);

    void showEvent(QShowEvent *event) override;

private:
    void ensureRange();

    VantrelQtDoubleSpinBox *m_spinBox; // owned
    SpinBoxEventCatcher *m_eventCatcher; // owned
    double m_increment = 0.0;
    double m_minimum = std::numeric_limits<double>::lowest();
    double m_maximum = std::numeric_limits<double>::max();
    bool m_hasRange = false; // the spin box has the limits
    int m_editBoxWidth = 0;
    UpdateGate m_updateGate;
};

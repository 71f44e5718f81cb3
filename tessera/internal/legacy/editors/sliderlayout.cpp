// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "sliderlayout.h"

#include <QAbstractSpinBox>
#include <QHBoxLayout>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSpinBox>

namespace {

int editBoxWidthOf(const QAbstractSpinBox &spinBox, const QStyle &style)
{
    const QFontMetrics metrics = spinBox.fontMetrics();
    const QSize text(metrics.horizontalAdvance(QStringLiteral("999999999999")), metrics.height());
    QStyleOptionSpinBox option;
    option.initFrom(&spinBox);
    option.subControls = QStyle::SC_SpinBoxUp | QStyle::SC_SpinBoxDown | QStyle::SC_SpinBoxFrame;
    return style.sizeFromContents(QStyle::CT_SpinBox, &option, text, &spinBox).width();
}

} // namespace

int layOutSlider(QWidget *editor, QAbstractSpinBox *spinBox, QSlider *slider)
{
    QSizePolicy sliderPolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    sliderPolicy.setHorizontalStretch(10);
    slider->setSizePolicy(sliderPolicy);

    const int width = editBoxWidthOf(*spinBox, *editor->style());
    spinBox->setMinimumWidth(width);
    spinBox->setSizePolicy(QSizePolicy::Fixed, spinBox->sizePolicy().verticalPolicy());

    auto *layout = new QHBoxLayout(editor);
    layout->setContentsMargins(0, 1, 0, 1);
    layout->addWidget(spinBox);
    layout->addWidget(slider);
    layout->addSpacing(4);

    editor->setFocusPolicy(Qt::StrongFocus);
    editor->setFocusProxy(spinBox);
    return width;
}

bool focusOtherPart(QAbstractSpinBox *spinBox, QSlider *slider, bool next)
{
    if (next && spinBox->hasFocus()) {
        slider->setFocus(Qt::TabFocusReason);
        return true;
    }
    if (!next && slider->hasFocus()) {
        spinBox->setFocus(Qt::BacktabFocusReason);
        return true;
    }
    return false;
}

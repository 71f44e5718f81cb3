// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "usecaseedit.h"

#include "lightpalette.h"
#include "screenratio.h"
#include "trailingicon.h"

#include "plugin/contract/viewer/stylehelper.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>

namespace Plugin::Tessera::Internal::View {

namespace {

constexpr double reservedWidth = 40.0; // pixels at 96 dpi, for margin and cross

} // namespace

CUseCaseEdit::CUseCaseEdit(QWidget *parent)
    : QLineEdit(parent)
{
    QFont lineFont = font();
    lineFont.setFamily(QStringLiteral("Segoe UI"));
    lineFont.setPixelSize(CStyleHelper::computePixelFontSize(12));
    setFont(lineFont);
    m_crossAction = addTrailingCross(this);
    if (m_crossAction) {
        m_crossAction->setText(tr("Leave the use case")); // the tool tip as well
        connect(m_crossAction, &QAction::triggered, this, &CUseCaseEdit::onCrossActionTriggered);
    }
    setReadOnly(true);
    setTextMargins(7, 0, 0, 0);
    connect(qApp, &QGuiApplication::paletteChanged, this, &CUseCaseEdit::updateColours);
    updateColours();
}

CUseCaseEdit::~CUseCaseEdit() = default;

void CUseCaseEdit::setText(const QString &text)
{
    m_fullText = text;
    showText();
}

void CUseCaseEdit::showText()
{
    const int room = width() - static_cast<int>(screenRatio() * reservedWidth);
    const QString shown = fontMetrics().elidedText(m_fullText, Qt::ElideRight, room);
    QLineEdit::setText(shown);
    setCursorPosition(0);
    setToolTip(shown == m_fullText ? QString() : m_fullText);
}

// A child with a style sheet of its own does not take the palette of its parent.
void CUseCaseEdit::updateColours()
{
    setPalette(lightPalette());
    setStyleSheet(QStringLiteral("QLineEdit { border: 1px solid %1; border-radius: 0px; "
                                 "background-color: %2;}")
                      .arg(lightStyleColour(QPalette::Mid, "mid"), QColor(255, 216, 147).name()));
}

// The keys that would empty a line that can be edited, and those that press a button.
void CUseCaseEdit::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
    case Qt::Key_Enter:
    case Qt::Key_Return:
    case Qt::Key_Space:
        Q_EMIT onCrossActionTriggered();
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

void CUseCaseEdit::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        QFont lineFont = font();
        lineFont.setPixelSize(CStyleHelper::computePixelFontSize(12));
        setFont(lineFont); // comes back here only where it changes something
        showText();
    } else if (event->type() == QEvent::ApplicationPaletteChange) {
        updateColours();
    }
}

void CUseCaseEdit::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    showText();
}

} // namespace Plugin::Tessera::Internal::View

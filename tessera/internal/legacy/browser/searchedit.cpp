// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "searchedit.h"

#include "internal/view/lightpalette.h"
#include "internal/view/screenratio.h"
#include "internal/view/trailingicon.h"
#include "plugin/contract/viewer/stylehelper.h"
#include "plugin/services/pluginresources.h"

#include <QAction>
#include <QApplication>
#include <QInputMethodEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyle>

namespace {

constexpr int iconWidth = 30; // pixels at the right, kept free of the help text

// Complete, so that nothing of it is taken from the parent's font.
QFont fontToPaint()
{
    QFont font = QApplication::font("QLineEdit");
    font.resolve(~0U);
    return font;
}

} // namespace

SearchEdit::SearchEdit(QWidget *parent)
    : QLineEdit(parent)
{
    Plugin::Tessera::initResources();
    setFont(QApplication::font());
    connect(this, &QLineEdit::textChanged, this, &SearchEdit::onTextChanged);
    m_lensAction = addTrailingIcon(this, QStringLiteral("lens"),
                                   QIcon(QStringLiteral(":/tessera/icons/lens.svg")), 10);
    m_lensAction->setEnabled(false); // a picture, no button
    m_clearAction = addTrailingCross(this);
    if (m_clearAction) {
        m_clearAction->setText(tr("Clear the search")); // the tool tip as well
        connect(m_clearAction, &QAction::triggered, this, &QLineEdit::clear);
        m_clearAction->setVisible(false);
    }
    setTextMargins(7, 0, 0, 0);
    connect(qApp, &QGuiApplication::paletteChanged, this, &SearchEdit::updateColours);
    updateColours();
}

SearchEdit::~SearchEdit() = default;

void SearchEdit::setHelpText(const QString &helpText)
{
    m_helpText = helpText;
}

void SearchEdit::onTextChanged(const QString &text)
{
    m_lensAction->setVisible(text.isEmpty());
    if (m_clearAction) {
        m_clearAction->setVisible(!text.isEmpty());
    }
    updateColours();
    update();
}

// A child with a style sheet of its own does not take the palette of its parent.
void SearchEdit::updateColours()
{
    setPalette(lightPalette());
    const QString frame = QStringLiteral("QLineEdit { border: 1px solid %1; border-radius: 0px; "
                                         "background-color: %2}")
                              .arg(lightStyleColour(QPalette::Mid, "mid"));
    setStyleSheet(text().isEmpty()
                      ? frame.arg(lightStyleColour(QPalette::Button, "button") + QLatin1Char(';'))
                      : frame.arg(QColor(255, 167, 0).name() + QLatin1String("; ")));
}

void SearchEdit::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange && !m_isPainting) {
        m_paintedFont.reset();
        const int pixels = CStyleHelper::computePixelFontSize(12);
        if (font().pixelSize() != pixels) {
            QFont lineFont = font();
            lineFont.setPixelSize(pixels);
            setFont(lineFont);
        }
    } else if (event->type() == QEvent::ApplicationPaletteChange) {
        updateColours();
    }
}

void SearchEdit::inputMethodEvent(QInputMethodEvent *event)
{
    m_isComposing = !event->preeditString().isEmpty();
    QLineEdit::inputMethodEvent(event);
}

void SearchEdit::paintEvent(QPaintEvent *event)
{
    const QScopedValueRollback<bool> painting(m_isPainting, true);
    const QFont painted = fontToPaint();
    if (m_paintedFont != painted) {
        m_paintedFont = painted;
        setFont(painted);
    }
    QLineEdit::paintEvent(event);
    if (!m_helpText.isEmpty() && !m_isComposing && !(m_clearAction && m_clearAction->isVisible())) {
        paintHelpText();
    }
}

void SearchEdit::paintHelpText()
{
    QPainter painter(this);
    painter.setFont(font());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
    const int left = textMargins().left() + style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    const QRect place = rect().adjusted(left, 0, -iconWidth, 0);
    const int room = static_cast<int>(place.width() / screenRatio());
    painter.drawText(place, Qt::AlignVCenter,
                     fontMetrics().elidedText(m_helpText, Qt::ElideRight, room));
}

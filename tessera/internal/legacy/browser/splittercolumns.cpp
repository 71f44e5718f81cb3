// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "splittercolumns.h"

#include <QEvent>
#include <QSplitter>

#include <numeric>
#include <utility>

SplitterColumns::SplitterColumns(QSplitter *splitter)
    : QObject(splitter)
    , m_splitter(splitter)
{
    splitter->installEventFilter(this);
}

void SplitterColumns::setTreeWidth(int width)
{
    if (width >= 0) {
        m_pendingWidth = apply(width) ? -1 : width;
    }
}

bool SplitterColumns::apply(int width)
{
    QList<int> sizes = m_splitter->sizes();
    if (std::accumulate(sizes.cbegin(), sizes.cend(), 0) == 0) {
        return false;
    }
    if (width >= 0 && sizes.size() == 3 && sizes.at(0) + sizes.at(2) > width) {
        sizes[2] += sizes.at(0) - width;
        sizes[0] = width;
        m_splitter->setSizes(sizes);
    }
    return true;
}

// The splitter has given its children their sizes when its own event has been dealt with.
bool SplitterColumns::eventFilter(QObject *watched, QEvent *event)
{
    if (m_pendingWidth >= 0 && (event->type() == QEvent::Resize || event->type() == QEvent::Show)) {
        watched->event(event);
        if (apply(m_pendingWidth)) {
            m_pendingWidth = -1;
        }
        return true;
    }
    return QObject::eventFilter(watched, event);
}

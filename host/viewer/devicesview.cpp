// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "devicesview.h"

#include "sourcemodel.h"
#include "sourcesession.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace Viewer {

namespace {

QToolButton *buttonFor(QAction *action, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setDefaultAction(action);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

} // namespace

DevicesView::DevicesView(SourceSession *session, QWidget *parent)
    : QWidget(parent)
    , m_session(session)
    , m_model(new SourceModel(session, this))
    , m_list(new QTreeView(this))
    , m_openAction(new QAction(tr("&Open"), this))
    , m_closeAction(new QAction(tr("&Close"), this))
{
    setObjectName(QStringLiteral("devicesView"));
    m_list->setObjectName(QStringLiteral("deviceList"));
    m_list->setAccessibleName(tr("Devices"));
    m_list->setModel(m_model);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_list->addActions(sourceActions());
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(buttonFor(m_openAction, this));
    buttons->addWidget(buttonFor(m_closeAction, this));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addWidget(m_list);
    layout->addLayout(buttons);

    connect(m_list, &QTreeView::activated, this, &DevicesView::activate);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &DevicesView::updateActions);
    connect(m_openAction, &QAction::triggered, this,
            [this] { m_session->requestOpen(selectedSource()); });
    connect(m_closeAction, &QAction::triggered, this,
            [this] { m_session->requestClose(selectedSource()); });
    connect(session, &SourceSession::changed, this, &DevicesView::updateActions);
    connect(session, &SourceSession::opened, this, &DevicesView::selectActive);
    updateActions();
}

QList<QAction *> DevicesView::sourceActions() const
{
    return {m_openAction, m_closeAction};
}

int DevicesView::selectedSource() const
{
    return m_list->currentIndex().row();
}

void DevicesView::activate(const QModelIndex &index)
{
    if (m_session->isOpen(index.row())) {
        m_session->requestActive(index.row());
    } else {
        m_session->requestOpen(index.row());
    }
}

void DevicesView::updateActions()
{
    const int selected = selectedSource();
    const bool open = selected >= 0 && m_session->isOpen(selected);
    m_openAction->setEnabled(selected >= 0 && !open);
    m_closeAction->setEnabled(open);
}

void DevicesView::selectActive()
{
    m_list->setCurrentIndex(m_model->index(m_session->activeIndex(), 0));
}

} // namespace Viewer

// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "viewerapplication.h"

#include "currentfeature.h"
#include "mainwindow.h"
#include "panecommands.h"
#include "sourcesession.h"
#include "visibilitylevel.h"
#include "windowpicture.h"

#include <host/framework/actioncommand.h>
#include <host/framework/findservice.h>
#include <host/framework/languagechoice.h>
#include <host/framework/menuservice.h>
#include <host/framework/parameterpool.h>
#include <host/framework/plugincatalogue.h>
#include <host/framework/pluginerror.h>
#include <host/framework/pluginloader.h>
#include <host/framework/serviceregistry.h>
#include <host/framework/windowservice.h>
#include <plugin/contract/core/languagehelper.h>
#include <plugin/contract/viewer/featuretreestatusservice.h>

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QStatusBar>
#include <QTextStream>

#include <cstdlib>
#include <stdexcept>

namespace Viewer {

using Plugin::FeatureTree::IFeatureTreeStatusService;

ViewerApplication::ViewerApplication(Options options, QObject *parent)
    : QObject(parent)
    , m_options(std::move(options))
{
}

ViewerApplication::~ViewerApplication()
{
    shutDown();
}

void ViewerApplication::start(const QString &pluginFolder)
{
    makeServices();
    m_loader.reset(new Host::PluginLoader(m_registry, m_catalogue));
    loadPlugins(pluginFolder);
    m_window->setLoader(m_loader.data());
    const auto status = Host::findService<IFeatureTreeStatusService>(m_registry);
    m_feature->follow(status);
    if (status) {
        connect(status.data(), &IFeatureTreeStatusService::newText, m_window->statusBar(),
                [this](const QString &text) { m_window->statusBar()->showMessage(text); });
    }
    m_window->restoreLayout();
    openSources();
    if (!m_options.printFeatures || !m_options.screenshot.isEmpty()) {
        m_window->show();
    }
    applyPaneOptions();
    startUnattendedWork();
}

void ViewerApplication::shutDown()
{
    if (!m_registry) {
        return;
    }
    m_session->closeAll();
    m_feature->clear();
    m_window->setLoader(nullptr);
    if (m_loader) {
        m_loader->shutDown();
        m_loader.reset();
    }
    m_registry->clear();
    m_window.reset();
    m_session.reset();
    m_pool.reset();
    m_catalogue.reset();
    m_registry.reset();
}

MainWindow *ViewerApplication::window() const
{
    return m_window.data();
}

SourceSession *ViewerApplication::session() const
{
    return m_session.data();
}

QString ViewerApplication::featureText() const
{
    auto *command = dynamic_cast<Host::ActionCommand *>(
        m_window->menuService()->command(Core::CId("Tessera.CopyCameraFeatures")));
    if (!command) {
        throw std::runtime_error("no plug-in offers to copy the features");
    }
    command->proxy()->trigger();
    return QGuiApplication::clipboard()->text();
}

void ViewerApplication::makeServices()
{
    m_registry = QSharedPointer<Host::ServiceRegistry>::create();
    m_catalogue = QSharedPointer<Host::PluginCatalogue>::create();
    m_pool = QSharedPointer<Host::ParameterPool>::create();
    m_session.reset(new SourceSession(m_registry, m_pool));
    m_feature.reset(new CurrentFeature);
    connect(m_session.data(), &SourceSession::closed, m_feature.data(), &CurrentFeature::clear);
    m_window.reset(new MainWindow(m_session.data(), m_feature.data()));
    m_registry->registerService(m_catalogue);
    m_registry->registerService(m_pool);
    m_registry->registerService(m_window->menuService());
    m_registry->registerService(m_window->windowService());
    m_session->addAll();
    m_catalogue->setWorkbenchOffered(true);
}

void ViewerApplication::loadPlugins(const QString &folder)
{
    const auto files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
    if (files.isEmpty()) {
        throw Host::PluginError(folder, QStringLiteral("there is no plug-in in this folder."));
    }
    const QString language = LanguageHelper::loadLanguageId();
    for (const QFileInfo &file : files) {
        m_loader->load(file.canonicalFilePath(), language);
    }
    m_loader->start();
}

void ViewerApplication::openSources()
{
    const QStringList wanted =
        m_options.sources.isEmpty() ? QStringList {m_session->id(0)} : m_options.sources;
    for (const QString &id : wanted) {
        m_session->add(id);
        m_session->open(m_session->indexOf(id));
    }
}

void ViewerApplication::applyPaneOptions()
{
    if (m_options.visibility) {
        m_window->visibilityLevel()->setLevel(*m_options.visibility);
    }
    PaneCommands pane(m_window.data());
    if (!m_options.pane.isEmpty()) {
        pane.showPane(m_options.pane);
    }
    if (!m_options.search.isEmpty()) {
        pane.search(m_options.search);
    }
    if (!m_options.useCase.isEmpty()) {
        pane.chooseUseCase(m_options.useCase);
    }
    if (!m_options.select.isEmpty()) {
        pane.select(m_options.select);
    }
}

void ViewerApplication::startUnattendedWork()
{
    if (m_options.printFeatures) {
        QTextStream(stdout) << featureText() << Qt::flush;
    }
    if (m_options.screenshot.isEmpty()) {
        if (m_options.printFeatures) {
            QMetaObject::invokeMethod(
                this, [this] { Q_EMIT finished(EXIT_SUCCESS); }, Qt::QueuedConnection);
        }
        return;
    }
    auto *picture = new WindowPicture(m_window.data(), m_options.screenshot, this);
    connect(picture, &WindowPicture::saved, this, [this] { Q_EMIT finished(EXIT_SUCCESS); });
    connect(picture, &WindowPicture::failed, this, [this](const QString &message) {
        QTextStream(stderr) << QStringLiteral("tessera-viewer: %1\n").arg(message);
        Q_EMIT finished(2);
    });
}

} // namespace Viewer

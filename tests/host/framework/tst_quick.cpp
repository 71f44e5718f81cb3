// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "host/framework/quick.h"
#include "plugin/contract/viewer/stylehelper.h"
#include "support/warningguard.h"

#include <QDomDocument>
#include <QFile>
#include <QImage>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include <memory>

class TestQuick : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qunsetenv("QT_QUICK_BACKEND");
    }

    void init()
    {
        m_guard.begin();
    }

    void cleanup()
    {
        m_guard.verify();
    }

    void drawsWithoutOpenGl()
    {
        Host::prepareQuick();
        Host::prepareQuick();
        QQuickWindow window;
        const QSignalSpy frames(&window, &QQuickWindow::frameSwapped);
        window.resize(20, 20);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.rendererInterface()->graphicsApi(), QSGRendererInterface::Software);
        QTRY_VERIFY(!frames.isEmpty());
    }

    void deletesWindowsThatNobodyOwns()
    {
        QObject owner;
        const QPointer<QQuickWindow> free(new QQuickWindow);
        const QPointer<QQuickWindow> owned(new QQuickWindow);
        owned->QObject::setParent(&owner);
        const QPointer<QWindow> plain(new QWindow);
        Host::deleteQuickWindows();
        QVERIFY(free.isNull());
        QVERIFY(!owned.isNull());
        QVERIFY(!plain.isNull());
        delete plain;
    }

    void offersTheFontsToScenes()
    {
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData("import QtQuick 2.15\nimport Corvane.Controls 1.0\n"
                          "Text { font.family: Styling.font__Segoe_UI\n"
                          "font.pixelSize: Styling.font__Default_Size }",
                          QUrl());
        const std::unique_ptr<QObject> text(component.create());
        QVERIFY2(text, qPrintable(component.errorString()));
        const auto font = text->property("font").value<QFont>();
        QCOMPARE(font.family(), QStringLiteral("Segoe UI"));
        QCOMPARE(font.pixelSize(), 16); // 12 pt at 96 dpi
        QCOMPARE(CStyleHelper::computePixelFontSize(11), 15); // rounded up
        QCOMPARE(CStyleHelper::computePixelFontSize(10), 13); // rounded down
    }

    void resourcesAreThere()
    {
        const QString folder = QStringLiteral(":/vantrelviewercomponents/Resources/");
        for (const char *name : {"sync_16", "Move_Up", "Move_Down"}) {
            for (const int side : {16, 32}) {
                const QImage image(folder + QLatin1String(name)
                                   + QLatin1String(side == 16 ? ".png" : "@2x.png"));
                QCOMPARE(image.size(), QSize(side, side));
            }
        }
        QFile file(folder + QStringLiteral("Default_Filter.xml"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QDomDocument document;
        QVERIFY(document.setContent(&file));
        QVERIFY(!document.documentElement().isNull());
        QVERIFY(document.documentElement().firstChildElement().isNull());
    }

private:
    Tests::WarningGuard m_guard;
};

QTEST_MAIN(TestQuick)
#include "tst_quick.moc"

// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "host/framework/quick.h"
#include "plugin/contract/viewer/stylehelper.h"
#include "support/warningguard.h"

#include <QDomDocument>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QScreen>
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
        QCOMPARE(font.pixelSize(), CStyleHelper::computePixelFontSize(12));
    }

    void computesFontSizesFromTheScreen_data()
    {
        QTest::addColumn<int>("points");
        QTest::addColumn<int>("pixelsAt96Dpi");
        QTest::newRow("usual") << 12 << 16;
        QTest::newRow("rounded up") << 11 << 15;
        QTest::newRow("rounded down") << 10 << 13;
        QTest::newRow("nothing") << 0 << 0;
    }

    void computesFontSizesFromTheScreen()
    {
        QFETCH(int, points);
        QFETCH(int, pixelsAt96Dpi);
        QCOMPARE(QGuiApplication::primaryScreen()->logicalDotsPerInch(), 96.0);
        QCOMPARE(CStyleHelper::computePixelFontSize(points), pixelsAt96Dpi);
    }

    void iconsAreDrawnInBothSizes_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"sync_16", "Move_Up", "Move_Down"}) {
            QTest::newRow(name) << QString::fromLatin1(name);
        }
    }

    void iconsAreDrawnInBothSizes()
    {
        QFETCH(QString, name);
        const QString stem = QStringLiteral(":/vantrelviewercomponents/Resources/") + name;
        for (const QString &suffix : {QStringLiteral(".png"), QStringLiteral("@2x.png")}) {
            const QImage image(stem + suffix);
            const int side = suffix.startsWith(QLatin1Char('@')) ? 32 : 16;
            QCOMPARE(image.size(), QSize(side, side));
            QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
            int drawn = 0;
            for (int i = 0; i < side * side; ++i) {
                drawn += qAlpha(image.pixel(i % side, i / side)) > 127 ? 1 : 0;
            }
            QVERIFY2(drawn > side * side / 8, qPrintable(QString::number(drawn)));
        }
    }

    void defaultFilterIsValidAndEmpty()
    {
        QFile file(QStringLiteral(":/vantrelviewercomponents/Resources/Default_Filter.xml"));
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

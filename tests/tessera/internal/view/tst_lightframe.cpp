// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/view/lightframe.h"

#include <QApplication>
#include <QFrame>
#include <QSpinBox>
#include <QtTest>

class tst_LightFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsWhatIsInItReadable_data()
    {
        QTest::addColumn<bool>("isDarkAtFirst");
        QTest::newRow("under a dark system") << true;
        QTest::newRow("when the system turns dark") << false;
    }

    void keepsWhatIsInItReadable()
    {
        QFETCH(bool, isDarkAtFirst);
        const QPalette light(QColor(0xef, 0xef, 0xef));
        const QPalette dark(QColor(0x31, 0x36, 0x3b));
        QApplication::setPalette(isDarkAtFirst ? dark : light);
        QFrame frame;
        frame.setStyleSheet(QStringLiteral("QFrame { background-color: \"white\"; }"));
        QSpinBox early(&frame);
        new LightFrame(&frame);
        QApplication::setPalette(dark);
        frame.show();
        auto *late = new QSpinBox(&frame);
        late->show();
        for (const QWidget *box : {&early, late}) {
            const auto *line = box->findChild<QWidget *>(QStringLiteral("qt_spinbox_lineedit"));
            QVERIFY(line->palette().color(QPalette::Text).lightness() < 128);
            QVERIFY(line->palette().color(QPalette::Base).lightness() > 128);
        }
        QApplication::setPalette(light);
        QCOMPARE(late->palette().color(QPalette::Button), light.color(QPalette::Button));
    }
};

QTEST_MAIN(tst_LightFrame)
#include "tst_lightframe.moc"

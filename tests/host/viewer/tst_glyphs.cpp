// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include <host/framework/languagechoice.h>

#include <QGlyphRun>
#include <QGuiApplication>
#include <QTextLayout>
#include <QtTest>

/// Every language the viewer speaks must have a font on this machine: a missing glyph shows as a
/// box.
class GlyphsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachLanguageHasGlyphs_data();
    void eachLanguageHasGlyphs();
    void aCharacterWithoutGlyphIsNoticed();

private:
    static int missingGlyphs(const QString &text);
};

int GlyphsTest::missingGlyphs(const QString &text)
{
    QTextLayout layout(text, QGuiApplication::font());
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    int missing = 0;
    const auto runs = layout.glyphRuns();
    for (const QGlyphRun &run : runs) {
        missing += run.glyphIndexes().count(0);
    }
    return missing;
}

void GlyphsTest::eachLanguageHasGlyphs_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("en") << QStringLiteral("Features – All µs °C ≤ “”");
    QTest::newRow("ja") << QStringLiteral("露光時間 明るさの制御 カメラ");
    QTest::newRow("zh") << QStringLiteral("曝光时间 控制亮度 相机");
    QTest::newRow("ko") << QStringLiteral("노출 시간 밝기 제어 카메라");
}

void GlyphsTest::eachLanguageHasGlyphs()
{
    QFETCH(QString, text);
    QVERIFY(Host::LanguageChoice::isKnown(QLatin1String(QTest::currentDataTag())));
    QCOMPARE(missingGlyphs(text), 0);
}

void GlyphsTest::aCharacterWithoutGlyphIsNoticed()
{
    // U+10FFFD is for private use; no font of this world draws it.
    const char32_t privateUse = 0x10FFFD;
    QVERIFY(missingGlyphs(QString::fromUcs4(&privateUse, 1)) > 0);
}

QTEST_MAIN(GlyphsTest)
#include "tst_glyphs.moc"

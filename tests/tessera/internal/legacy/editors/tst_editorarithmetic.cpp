// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/editors/floattext.h"
#include "internal/legacy/editors/hexvalidator.h"
#include "internal/legacy/editors/integergrid.h"
#include "internal/legacy/editors/logarithmicscale.h"
#include "internal/legacy/editors/rangetext.h"

#include <QLocale>
#include <QTest>

#include <limits>

namespace {

constexpr int intMin = std::numeric_limits<int>::min();
constexpr int intMax = std::numeric_limits<int>::max();

} // namespace

class TestEditorArithmetic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void narrowsWhatIsTooWide()
    {
        QCOMPARE(saturatedInt(-5), -5);
        QCOMPARE(saturatedInt(qint64 {intMax} + 1), intMax);
        QCOMPARE(saturatedInt(qint64 {intMin} - 1), intMin);
        QCOMPARE(lowInt(qint64 {intMax} + 1), intMin);
        QCOMPARE(truncatedInt(2.9), 2);
        QCOMPARE(truncatedInt(2147483648.0), intMin);
        QCOMPARE(truncatedInt(std::numeric_limits<double>::quiet_NaN()), intMin);
    }

    void staysOnTheGrid()
    {
        QCOMPARE(onGrid(100, 0, 7), 98);
        QCOMPARE(onGrid(13, 10, 5), 10);
        QCOMPARE(onGrid(13, 10, 0), 13);
        QCOMPARE(onGrid(-1, -10, 4), -2);
        QCOMPARE(onGrid(intMax, intMin, 2), intMax - 1);
    }

    void pagesByATwentieth()
    {
        QCOMPARE(pageStepFor(0, 1000, 1), 50);
        QCOMPARE(pageStepFor(0, 10, 1), 2);
        QCOMPARE(pageStepFor(intMin, 0, 3), 6); // a span that wraps
        QCOMPARE(pageStepFor(0, 10, intMax), intMax);
    }

    void writesFloats()
    {
        const auto text = [](double number, int precision, int flags, const char *language) {
            return formatFloat(number, precision, flags, QLocale(QLatin1String(language)));
        };
        QCOMPARE(text(1.5, 3, 1, "C"), QStringLiteral("1.5"));
        QCOMPARE(text(2.0, 3, 1, "C"), QStringLiteral("2.0")); // one zero stays
        QCOMPARE(text(1234.5, 3, 1, "en_US"), QStringLiteral("1234.5"));
        QCOMPARE(text(1234.5, 1, 8, "en_US"), QStringLiteral("1,234.5"));
        QCOMPARE(text(1234.50, 2, 1, "de_DE"), QStringLiteral("1234,5"));
        QCOMPARE(text(2.25, 3, 5, "C"), QStringLiteral("2.25"));
        QCOMPARE(text(1e308, 0, 2, "C"), QStringLiteral("1e+308"));
        QCOMPARE(text(100.0, 5, 7, "C"), QStringLiteral("100"));
    }

    void tellsRanges()
    {
        QCOMPARE(limitText(intMin, 16), QStringLiteral("-80000000"));
        const FloatRangeText fine = floatRangeText(0.0, 1.25, 0.25, 2, 1, QLocale::c());
        QCOMPARE(fine.maximum, QStringLiteral("1.25"));
        QVERIFY(fine.hasIncrement);
        QVERIFY(!floatRangeText(0.0, 1.25, 0.25, 0, 1, QLocale::c()).hasIncrement);
        QCOMPARE(floatRangeFlags(-1e9, 1e9), int(StripTrailingZeros));
        QCOMPARE(floatRangeFlags(-1.1e9, 0.0), int(GeneralFormat));
    }

    void mapsLogarithmically()
    {
        LogarithmicScale scale;
        scale.setMinimum(100);
        scale.setMaximum(1000000);
        QCOMPARE(scale.valueAt(50000), 10000.0);
        QCOMPARE(scale.valueAt(200000), 1000000.0);
        QCOMPARE(scale.positionOf(10000), 50000.0);
        for (int position = 0; position <= 100000; position += 997) {
            QVERIFY(qAbs(scale.positionOf(scale.valueAt(position)) - position) < 1e-6);
        }
    }

    void stepsByOnePercent()
    {
        const auto step = [](double value, int steps) {
            const LogarithmicStep made = logarithmicStep(value, steps);
            return QString(QString::number(made.target) + QLatin1Char(' ')
                           + QString::number(made.shown));
        };
        QCOMPARE(step(20.0, 1), QStringLiteral("21.7 22")); // at least one
        QCOMPARE(step(200.0, 1), QStringLiteral("202.5 203"));
        QCOMPARE(step(50.0, -1), QStringLiteral("49 49"));
        QCOMPARE(step(1000.0, 10), QStringLiteral("1100.5 1101"));
    }

    void judgesHexadecimalByValue()
    {
        const HexValidator validator(0, 255, nullptr);
        const auto judge = [&](const char *text) {
            QString input = QString::fromLatin1(text);
            int pos = 0;
            return validator.validate(input, pos);
        };
        QCOMPARE(judge(" 0x "), QValidator::Intermediate);
        QCOMPARE(judge("0xff"), QValidator::Acceptable);
        QCOMPARE(judge("0X10"), QValidator::Invalid); // a large prefix
        QVERIFY(judge("0x100") != QValidator::Acceptable);
    }
};

QTEST_GUILESS_MAIN(TestEditorArithmetic)
#include "tst_editorarithmetic.moc"

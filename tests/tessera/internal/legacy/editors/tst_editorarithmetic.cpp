// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/editors/floattext.h"
#include "internal/legacy/editors/hexvalidator.h"
#include "internal/legacy/editors/integergrid.h"
#include "internal/legacy/editors/logarithmicscale.h"
#include "internal/legacy/editors/rangetext.h"

#include <QLocale>
#include <QTest>

#include <cmath>
#include <limits>

namespace {

constexpr int intMin = std::numeric_limits<int>::min();
constexpr int intMax = std::numeric_limits<int>::max();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

} // namespace

class TestEditorArithmetic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void narrows_data()
    {
        QTest::addColumn<qint64>("wide");
        QTest::addColumn<int>("saturated");
        QTest::addColumn<int>("low");
        QTest::newRow("zero") << qint64 {0} << 0 << 0;
        QTest::newRow("negative") << qint64 {-5} << -5 << -5;
        QTest::newRow("largest") << qint64 {intMax} << intMax << intMax;
        QTest::newRow("one more") << qint64 {intMax} + 1 << intMax << intMin;
        QTest::newRow("one less") << qint64 {intMin} - 1 << intMin << intMax;
        QTest::newRow("widest") << std::numeric_limits<qint64>::max() << intMax << -1;
        QTest::newRow("lowest") << std::numeric_limits<qint64>::min() << intMin << 0;
    }

    void narrows()
    {
        QFETCH(qint64, wide);
        QTEST(saturatedInt(wide), "saturated");
        QTEST(lowInt(wide), "low");
    }

    void truncates_data()
    {
        QTest::addColumn<double>("number");
        QTest::addColumn<int>("truncated");
        QTest::newRow("up") << 2.9 << 2;
        QTest::newRow("down") << -2.9 << -2;
        QTest::newRow("largest") << 2147483647.9 << intMax;
        QTest::newRow("smallest") << -2147483648.9 << intMin;
        QTest::newRow("too large") << 2147483648.0 << intMin;
        QTest::newRow("too small") << -1e300 << intMin;
        QTest::newRow("infinite") << infinity << intMin;
        QTest::newRow("not a number") << notANumber << intMin;
        QTest::newRow("denormal") << 5e-324 << 0;
    }

    void truncates()
    {
        QFETCH(double, number);
        QTEST(truncatedInt(number), "truncated");
    }

    void staysOnTheGrid_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("step");
        QTest::addColumn<int>("point");
        QTest::newRow("between") << 50 << 0 << 7 << 49;
        QTest::newRow("maximum off the grid") << 100 << 0 << 7 << 98;
        QTest::newRow("anchored") << 13 << 10 << 5 << 10;
        QTest::newRow("alias") << 123 << 1 << 10 << 121;
        QTest::newRow("no step") << 13 << 10 << 0 << 13;
        QTest::newRow("negative minimum") << -1 << -10 << 4 << -2;
        QTest::newRow("below the minimum") << 3 << 10 << 5 << 5;
        QTest::newRow("whole width") << intMax << intMin << 2 << intMax - 1;
        QTest::newRow("negative step") << intMin << 0 << -1 << intMin;
    }

    void staysOnTheGrid()
    {
        QFETCH(int, value);
        QFETCH(int, minimum);
        QFETCH(int, step);
        QTEST(onGrid(value, minimum, step), "point");
    }

    void pagesByATwentieth_data()
    {
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("increment");
        QTest::addColumn<int>("page");
        QTest::newRow("wide") << 0 << 1000 << 1 << 50;
        QTest::newRow("narrow") << 0 << 10 << 1 << 2;
        QTest::newRow("contradicting") << 1000 << 0 << 1 << 50;
        QTest::newRow("span that wraps") << -2000000000 << 2000000000 << 1 << 14748364;
        QTest::newRow("span that wraps to nothing") << intMin << intMax << 3 << 6;
        QTest::newRow("span that wraps to the smallest") << intMin << 0 << 3 << 6;
        QTest::newRow("increment that saturates") << 0 << 10 << intMax << intMax;
    }

    void pagesByATwentieth()
    {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(int, increment);
        QTEST(pageStepFor(minimum, maximum, increment), "page");
    }

    void keepsMovesWithinInt()
    {
        QCOMPARE(movedBy(intMax - 1, 1, 5), intMax);
        QCOMPARE(movedBy(intMin, -10, intMax), intMin);
        QCOMPARE(movedBy(3, -2, 4), -5);
    }

    void writesFloats_data()
    {
        QTest::addColumn<double>("number");
        QTest::addColumn<int>("precision");
        QTest::addColumn<int>("flags");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("text");
        const QString c = QStringLiteral("C");
        const QString en = QStringLiteral("en_US");
        const QString de = QStringLiteral("de_DE");
        QTest::newRow("plain") << 1.5 << 3 << 0 << c << QStringLiteral("1.500");
        QTest::newRow("stripped") << 1.5 << 3 << 1 << c << QStringLiteral("1.5");
        QTest::newRow("one zero stays") << 2.0 << 3 << 1 << c << QStringLiteral("2.0");
        QTest::newRow("no point") << 200.0 << 0 << 1 << c << QStringLiteral("200");
        QTest::newRow("no groups") << 1234.5 << 3 << 1 << en << QStringLiteral("1234.5");
        QTest::newRow("groups") << 1234.5 << 1 << 8 << en << QStringLiteral("1,234.5");
        QTest::newRow("negative") << -1234567.0 << 1 << 1 << en << QStringLiteral("-1234567.0");
        QTest::newRow("comma") << 1234.50 << 2 << 1 << de << QStringLiteral("1234,5");
        QTest::newRow("whole is cut") << 2.0 << 3 << 4 << c << QStringLiteral("2");
        QTest::newRow("fraction is not cut") << 2.25 << 3 << 5 << c << QStringLiteral("2.25");
        QTest::newRow("rounded to whole") << 1.9999 << 2 << 5 << c << QStringLiteral("2.0");
        QTest::newRow("general") << 1e308 << 0 << 2 << c << QStringLiteral("1e+308");
        QTest::newRow("general keeps zeros") << 100.0 << 5 << 7 << c << QStringLiteral("100");
        QTest::newRow("denormal") << 5e-324 << 2 << 1 << c << QStringLiteral("0.0");
        QTest::newRow("infinite") << infinity << 2 << 5 << c << QStringLiteral("inf");
        QTest::newRow("absurd precision") << 0.5 << intMax << 1 << c << QStringLiteral("0.5");
    }

    void writesFloats()
    {
        QFETCH(double, number);
        QFETCH(int, precision);
        QFETCH(int, flags);
        QFETCH(QString, language);
        QTEST(formatFloat(number, precision, flags, QLocale(language)), "text");
    }

    void tellsRanges()
    {
        QCOMPARE(limitText(255, 16), QStringLiteral("ff"));
        QCOMPARE(limitText(intMin, 16), QStringLiteral("-80000000"));
        const FloatRangeText fine = floatRangeText(0.0, 1.25, 0.25, 2, 1, QLocale::c());
        QCOMPARE(fine.maximum, QStringLiteral("1.25"));
        QVERIFY(fine.hasIncrement);
        const FloatRangeText coarse = floatRangeText(0.0, 1.25, 0.25, 0, 1, QLocale::c());
        QCOMPARE(coarse.maximum, QStringLiteral("1"));
        QVERIFY(!coarse.hasIncrement);
        QVERIFY(floatRangeText(0, 1, 0.5, 1, 1, QLocale(QStringLiteral("de_DE"))).hasIncrement);
        QCOMPARE(floatRangeFlags(-1e9, 1e9), int(StripTrailingZeros));
        QCOMPARE(floatRangeFlags(-1.1e9, 0.0), int(GeneralFormat));
    }

    void mapsLogarithmically()
    {
        LogarithmicScale scale;
        scale.setMinimum(100);
        scale.setMaximum(1000000);
        QCOMPARE(scale.valueAt(0), 100.0);
        QCOMPARE(scale.valueAt(50000), 10000.0);
        QCOMPARE(scale.valueAt(100000), 1000000.0);
        QCOMPARE(scale.valueAt(200000), 1000000.0);
        QCOMPARE(scale.positionOf(10000), 50000.0);
        for (int position = 0; position <= 100000; position += 997) {
            QVERIFY(qAbs(scale.positionOf(scale.valueAt(position)) - position) < 1e-6);
        }
    }

    void survivesLimitsWithoutLogarithm_data()
    {
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::newRow("zero") << 0 << 1000;
        QTest::newRow("negative") << -5 << 1000;
        QTest::newRow("one value") << 7 << 7;
        QTest::newRow("both negative") << intMin << -1;
    }

    void survivesLimitsWithoutLogarithm()
    {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        LogarithmicScale scale;
        scale.setMinimum(minimum);
        scale.setMaximum(maximum);
        const double value = scale.valueAt(500);
        QVERIFY(value >= minimum && value <= maximum);
        const int position = truncatedInt(scale.positionOf(10));
        QVERIFY(position == intMin || minimum == 7);
    }

    void stepsByOnePercent_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("steps");
        QTest::addColumn<double>("target");
        QTest::addColumn<int>("shown");
        QTest::newRow("at least one") << 20.0 << 1 << 21.7 << 22;
        QTest::newRow("up") << 200.0 << 1 << 202.5 << 203;
        QTest::newRow("down") << 50.0 << -1 << 49.0 << 49;
        QTest::newRow("page") << 1000.0 << 10 << 1100.5 << 1101;
        QTest::newRow("down from nothing") << 0.0 << -1 << 1.5 << 2;
        QTest::newRow("beyond int") << 1e12 << 1 << 1.01e12 + 0.5 << intMin;
    }

    void stepsByOnePercent()
    {
        QFETCH(double, value);
        QFETCH(int, steps);
        QFETCH(double, target);
        const LogarithmicStep step = logarithmicStep(value, steps);
        QCOMPARE(step.target, target);
        QTEST(step.shown, "shown");
    }

    void judgesHexadecimalByValue_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("state");
        QTest::newRow("empty") << QString() << int(QValidator::Intermediate);
        QTest::newRow("prefix") << QStringLiteral(" 0x ") << int(QValidator::Intermediate);
        QTest::newRow("hexadecimal") << QStringLiteral("0xff") << int(QValidator::Acceptable);
        QTest::newRow("decimal") << QStringLiteral("255") << int(QValidator::Acceptable);
        QTest::newRow("word") << QStringLiteral("xyz") << int(QValidator::Invalid);
        QTest::newRow("large prefix") << QStringLiteral("0X10") << int(QValidator::Invalid);
        int pos = 0;
        QString outside = QStringLiteral("256");
        const auto ofBase = QIntValidator(0, 255, nullptr).validate(outside, pos);
        QTest::newRow("outside") << QStringLiteral("0x100") << int(ofBase);
    }

    void judgesHexadecimalByValue()
    {
        QFETCH(QString, text);
        const HexValidator validator(0, 255, nullptr);
        int pos = 0;
        QString input = text;
        QTEST(int(validator.validate(input, pos)), "state");
        QCOMPARE(input, text);
    }
};

QTEST_GUILESS_MAIN(TestEditorArithmetic)
#include "tst_editorarithmetic.moc"

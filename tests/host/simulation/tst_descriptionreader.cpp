// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "plugin/contract/core/baseexception.h"

#include "host/simulation/description/descriptionreader.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Simulation;

/// Descriptions on a disk: what is wrong is named, what is right is kept.
class TestDescriptionReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reportsAndSkipsABadEntry_data()
    {
        QTest::addColumn<QByteArray>("entry");
        QTest::addColumn<QString>("what");
        const auto row = [](const char *name, const char *entry, const char *what) {
            QTest::newRow(name) << QByteArray(entry) << QString::fromLatin1(what);
        };
        row("no object", "7", "needs a \"name\"");
        row("no name", R"({"type": "Integer"})", "needs a \"name\"");
        row("no type", R"({"name": "B"})", "needs a \"type\"");
        row("unknown type", R"({"name": "B", "type": "Int"})", "\"type\": \"Int\" is unknown");
        row("unknown visibility", R"({"name": "B", "type": "Boolean", "visibility": "All"})",
            "\"visibility\": \"All\" is unknown");
        row("unknown access", R"({"name": "B", "type": "Boolean", "access": "R"})",
            "\"access\": \"R\" is unknown");
        row("unknown representation",
            R"({"name": "B", "type": "Integer", "representation": "Hex"})",
            "\"representation\": \"Hex\" is unknown");
        row("no integer", R"({"name": "B", "type": "Integer", "value": "many"})",
            "\"value\" is no integer");
        row("fraction for an integer", R"({"name": "B", "type": "Integer", "value": 1.5})",
            "\"value\" is no integer");
        row("no number", R"({"name": "B", "type": "Float", "value": []})",
            "\"value\" is no number");
        row("limits reversed", R"({"name": "B", "type": "Integer", "minimum": 2, "maximum": 1})",
            "\"minimum\" lies above");
        row("step of 0", R"({"name": "B", "type": "Integer", "increment": 0})", "\"increment\"");
        row("no entries", R"({"name": "B", "type": "Enumeration"})", "needs \"entries\"");
        row("unknown entry",
            R"({"name": "B", "type": "Enumeration", "entries": ["X"], "value": "Y"})",
            "no entry is named \"Y\"");
        row("condition without value",
            R"({"name": "B", "type": "Boolean", "lockedWhile": [{"feature": "A"}]})",
            "\"lockedWhile\" needs");
        row("alias too wide",
            R"({"name": "B", "type": "Float", "alias": {"minimum": 0, "maximum": 3000000000}})",
            "\"alias\" needs 32-bit limits");
        row("limit of nothing", R"({"name": "B", "type": "Integer", "limits": {"maximum": {}}})",
            "\"limits\"");
        row("behaviour without kind", R"({"name": "B", "type": "Float", "behaviour": {}})",
            "\"behaviour\" needs a \"kind\"");
        row("name given twice", R"({"name": "A", "type": "Float"})", "stands in the tree already");
    }

    void reportsAndSkipsABadEntry()
    {
        QFETCH(const QByteArray, entry);
        QFETCH(const QString, what);
        const QString fileName = writeDevice(R"({"name": "A", "type": "Boolean"}, )" + entry
                                             + R"(, {"name": "Z", "type": "Boolean"})");
        DescriptionReader reader;
        const auto description = reader.read(fileName);
        QCOMPARE(reader.problems().size(), 1);
        const QString problem = reader.problems().constFirst();
        QVERIFY2(
            problem.startsWith(fileName + QStringLiteral(": trees[0].categories[0].children[1]: ")),
            qPrintable(problem));
        QVERIFY2(problem.contains(what), qPrintable(problem));
        QCOMPARE(description->childNames(description->find(QStringLiteral("@C/All"))),
                 QStringList({QStringLiteral("@C/A"), QStringLiteral("@C/Z")}));
    }

    void dropsRulesThatNameNothing_data()
    {
        QTest::addColumn<QByteArray>("rule");
        QTest::addColumn<QString>("what");
        const auto row = [](const char *name, const char *rule, const char *what) {
            QTest::newRow(name) << QByteArray(rule) << QString::fromLatin1(what);
        };
        row("lock", R"("lockedWhile": [{"feature": "X", "is": [1]}])", "no feature \"X\"");
        row("value of a lock", R"("lockedWhile": [{"feature": "E", "is": ["Q"]}])",
            "\"Q\" is no value of \"E\"");
        row("limit", R"("limits": {"maximum": {"of": "X"}})", "no feature \"X\"");
        row("selector", R"("selectedBy": "X")", "no feature \"X\"");
        row("selection", R"("selectedBy": "E", "selected": {"Q": 1})",
            "\"Q\" is no value of \"E\"");
        row("behaviour", R"("behaviour": {"kind": "dance"})", "kind \"dance\"");
        row("effect", R"("effect": {"kind": "set", "feature": "X", "value": 1})",
            "no feature \"X\"");
        row("value of an effect", R"("effect": {"kind": "set", "feature": "E", "value": "Q"})",
            "no entry is named \"Q\"");
    }

    void dropsRulesThatNameNothing()
    {
        QFETCH(const QByteArray, rule);
        QFETCH(const QString, what);
        const QString fileName =
            writeDevice(R"({"name": "E", "type": "Enumeration", "entries": ["On", "Off"]},)"
                        R"({"name": "F", "type": "Integer", "value": 5, )"
                        + rule + "}");
        DescriptionReader reader;
        const auto description = reader.read(fileName);
        QCOMPARE(reader.problems().size(), 1);
        const QString problem = reader.problems().constFirst();
        QVERIFY2(problem.startsWith(fileName + QStringLiteral(": @C/F: ")), qPrintable(problem));
        QVERIFY2(problem.contains(what), qPrintable(problem));
        QVERIFY(description->find(QStringLiteral("@C/F")) >= 0);
    }

    void refusesWhatIsNoDescription_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("why");
        QTest::newRow("broken") << QByteArray("{\n\"trees\": [\n}") << "line 3, offset ";
        QTest::newRow("empty") << QByteArray() << "line 1, offset 0";
        QTest::newRow("a list") << QByteArray("[]") << "an object is expected";
        QTest::newRow("no tree") << QByteArray("{}") << "describes no tree";
        QTest::newRow("no path") << QByteArray(R"({"trees": [{"path": "C"}]})")
                                 << "describes no tree";
    }

    void refusesWhatIsNoDescription()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QString, why);
        const QString fileName = write(QStringLiteral("broken.json"), text);
        const QString failure = failureOf(fileName);
        QVERIFY2(failure.startsWith(fileName + QStringLiteral(": ")), qPrintable(failure));
        QVERIFY2(failure.contains(why) && !failure.contains(QLatin1Char('\n')),
                 qPrintable(failure));
    }

    void refusesAMissingFile()
    {
        const QString failure = failureOf(QStringLiteral("nowhere/camera.json"));
        QVERIFY2(failure.startsWith(QStringLiteral("nowhere/camera.json: cannot be read (")),
                 qPrintable(failure));
    }

    void refusesAMissingInclude()
    {
        const QString failure = failureOf(writeDevice(R"({"include": "parts/none.json"})"));
        QVERIFY2(failure.contains(QStringLiteral("parts/none.json: cannot be read (")),
                 qPrintable(failure));
    }

    void reportsAFileThatIncludesItself()
    {
        write(QStringLiteral("ring.json"),
              R"({"category": "Ring", "children": [{"include": "ring.json"}]})");
        DescriptionReader reader;
        reader.read(writeDevice(R"({"include": "ring.json"})"));
        QCOMPARE(reader.problems().size(), 1);
        QVERIFY(
            reader.problems().constFirst().contains(QStringLiteral("ring.json: Ring.children[0]")));
    }

    void readsNumbersOf64Bits_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<qint64>("value");
        QTest::newRow("number") << QByteArray("-12") << qint64(-12);
        QTest::newRow("text") << QByteArray(R"("-9223372036854775808")")
                              << std::numeric_limits<qint64>::min();
        QTest::newRow("hexadecimal")
            << QByteArray(R"("0x7fffffffffffffff")") << std::numeric_limits<qint64>::max();
        QTest::newRow("all bits") << QByteArray(R"("0xFFFFFFFFFFFFFFFF")") << qint64(-1);
        QTest::newRow("truth") << QByteArray("true") << qint64(1);
    }

    void readsNumbersOf64Bits()
    {
        QFETCH(const QByteArray, json);
        QFETCH(const qint64, value);
        DescriptionReader reader;
        const auto description =
            reader.read(writeDevice(R"({"name": "N", "type": "Integer", "value": )" + json + "}"));
        QCOMPARE(reader.problems(), QStringList());
        QCOMPARE(integerOf(description->feature(description->find(QStringLiteral("@C/N"))).value),
                 value);
    }

private:
    QString write(const QString &name, const QByteArray &text) const
    {
        QFile file(QDir(m_folder.path()).filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
        return file.fileName();
    }

    /// A device with these features in one category.
    QString writeDevice(const QByteArray &features) const
    {
        return write(QStringLiteral("device.json"),
                     R"({"trees": [{"path": "@C", "categories": [{"category": "All", "children": [)"
                         + features + "]}]}]}");
    }

    /// What `read` says when it gives up; empty where it does not.
    static QString failureOf(const QString &fileName)
    {
        try {
            DescriptionReader().read(fileName);
            return QString();
        } catch (const Core::Exception::BaseException &exception) {
            return QString::fromUtf8(exception.what());
        }
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestDescriptionReader)
#include "tst_descriptionreader.moc"

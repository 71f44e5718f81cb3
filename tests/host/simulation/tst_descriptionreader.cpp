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
        const auto row = [](const char *what, const char *entry) {
            QTest::newRow(what) << QByteArray(entry) << QString::fromLatin1(what);
        };
        row("needs a \"name\"", "7");
        row("needs a \"type\"", R"({"name": "B"})");
        row("\"type\": \"Int\" is unknown", R"({"name": "B", "type": "Int"})");
        row("\"access\": \"R\" is unknown", R"({"name": "B", "type": "Boolean", "access": "R"})");
        row("\"value\" is no integer", R"({"name": "B", "type": "Integer", "value": 1.5})");
        row("\"value\" is no number", R"({"name": "B", "type": "Float", "value": []})");
        row("\"minimum\" lies above",
            R"({"name": "B", "type": "Integer", "minimum": 2, "maximum": 1})");
        row("\"increment\"", R"({"name": "B", "type": "Integer", "increment": 0})");
        row("needs \"entries\"", R"({"name": "B", "type": "Enumeration"})");
        row("no entry is named \"Y\"",
            R"({"name": "B", "type": "Enumeration", "entries": ["X"], "value": "Y"})");
        row("\"lockedWhile\" needs",
            R"({"name": "B", "type": "Boolean", "lockedWhile": [{"feature": "A"}]})");
        row("\"alias\" needs 32-bit limits",
            R"({"name": "B", "type": "Float", "alias": {"minimum": 0, "maximum": 3000000000}})");
        row("\"limits\"", R"({"name": "B", "type": "Integer", "limits": {"maximum": {}}})");
        row("\"behaviour\" needs a \"kind\"", R"({"name": "B", "type": "Float", "behaviour": {}})");
        row("stands in the tree already", R"({"name": "A", "type": "Float"})");
    }

    void reportsAndSkipsABadEntry()
    {
        QFETCH(const QByteArray, entry);
        QFETCH(const QString, what);
        const auto description = readDevice(R"({"name": "A", "type": "Boolean"}, )" + entry
                                            + R"(, {"name": "Z", "type": "Boolean"})");
        expectProblem(QStringLiteral("trees[0].categories[0].children[1]: "), what);
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
        row("selector", R"("selectedBy": "X")", "no feature \"X\"");
        row("selection", R"("selectedBy": "E", "selected": {"Q": 1})",
            "\"Q\" is no value of \"E\"");
        row("behaviour", R"("behaviour": {"kind": "dance"})", "kind \"dance\"");
        row("value of an effect", R"("effect": {"kind": "set", "feature": "E", "value": "Q"})",
            "no entry is named \"Q\"");
    }

    void dropsRulesThatNameNothing()
    {
        QFETCH(const QByteArray, rule);
        QFETCH(const QString, what);
        const auto description =
            readDevice(R"({"name": "E", "type": "Enumeration", "entries": ["On", "Off"]},)"
                       R"({"name": "F", "type": "Integer", "value": 5, )"
                       + rule + "}");
        expectProblem(QStringLiteral("@C/F: "), what);
        QVERIFY(description->find(QStringLiteral("@C/F")) >= 0);
    }

    void refusesWhatIsNoDescription_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("why");
        QTest::newRow("broken") << QByteArray("{\n\"trees\": [\n}") << "line 3, offset ";
        QTest::newRow("empty") << QByteArray() << "line 1, offset 0";
        QTest::newRow("a list") << QByteArray("[]") << "an object is expected";
        QTest::newRow("no tree") << QByteArray(R"({"trees": [{"path": "C"}]})")
                                 << "describes no tree";
        QTest::newRow("missing include")
            << deviceWith(R"({"include": "none.json"})") << "none.json: cannot be read (";
    }

    void refusesWhatIsNoDescription()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QString, why);
        const QString fileName = write("device.json", text);
        try {
            m_reader.read(fileName);
            QFAIL("nothing was thrown");
        } catch (const Core::Exception::BaseException &exception) {
            const QString failure = QString::fromUtf8(exception.what());
            QVERIFY2(failure.startsWith(m_folder.path()) && failure.contains(why),
                     exception.what());
            QVERIFY(!failure.contains(QLatin1Char('\n')));
        }
    }

    void reportsAFileThatIncludesItself()
    {
        write("ring.json", R"({"category": "Ring", "children": [{"include": "ring.json"}]})");
        readDevice(R"({"include": "ring.json"})");
        QCOMPARE(m_reader.problems().size(), 1);
        QVERIFY(m_reader.problems().constFirst().contains(QLatin1String("ring.json: Ring.child")));
    }

    void readsNumbersOf64Bits_data()
    {
        QTest::addColumn<qint64>("value");
        QTest::newRow("-12") << qint64(-12);
        QTest::newRow("\"-9223372036854775808\"") << std::numeric_limits<qint64>::min();
        QTest::newRow("\"0x7fffffffffffffff\"") << std::numeric_limits<qint64>::max();
        QTest::newRow("\"0xFFFFFFFFFFFFFFFF\"") << qint64(-1);
        QTest::newRow("true") << qint64(1);
    }

    void readsNumbersOf64Bits()
    {
        const auto description = readDevice(R"({"name": "N", "type": "Integer", "value": )"
                                            + QByteArray(QTest::currentDataTag()) + "}");
        QCOMPARE(m_reader.problems(), QStringList());
        const auto &feature = description->feature(description->find(QStringLiteral("@C/N")));
        QTEST(integerOf(feature.value), "value");
    }

private:
    QString write(const char *name, const QByteArray &text) const
    {
        QFile file(QDir(m_folder.path()).filePath(QLatin1String(name)));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write %s", name);
        return file.fileName();
    }

    /// A device with these features in one category.
    static QByteArray deviceWith(const QByteArray &features)
    {
        return R"({"trees": [{"path": "@C", "categories": [{"category": "All", "children": [)"
            + features + "]}]}]}";
    }

    QSharedPointer<const DeviceDescription> readDevice(const QByteArray &features)
    {
        return m_reader.read(write("device.json", deviceWith(features)));
    }

    void expectProblem(const QString &where, const QString &what) const
    {
        QCOMPARE(m_reader.problems().size(), 1);
        const QString problem = m_reader.problems().constFirst();
        const QString file = m_folder.filePath(QStringLiteral("device.json: "));
        QVERIFY2(problem.startsWith(file + where), qPrintable(problem));
        QVERIFY2(problem.contains(what), qPrintable(problem));
    }

    QTemporaryDir m_folder;
    DescriptionReader m_reader;
};

QTEST_GUILESS_MAIN(TestDescriptionReader)
#include "tst_descriptionreader.moc"

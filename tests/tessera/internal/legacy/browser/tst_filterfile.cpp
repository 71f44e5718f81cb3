// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/browser/filterfile.h"

#include "tessera/featuretest.h"

using Tests::Fault;

namespace {

const QString role = QStringLiteral("@FilterTest0"); // no other program looks for its files

QByteArray rule(const char *feature, const QByteArray &more)
{
    return QByteArray("<Rule><Name>@CameraDevice/") + feature + "</Name>" + more + "</Rule>";
}

/// A document that would grow to 10^13 characters.
QByteArray growingEntities()
{
    QByteArray document = "<!DOCTYPE f [<!ENTITY a 'aaaaaaaaaa'>";
    for (char name = 'a'; name < 'm'; ++name) {
        document += QByteArray("<!ENTITY ") + char(name + 1) + " '"
            + QByteArray(QByteArray("&") + name + ";").repeated(10) + "'>";
    }
    return document + "]><f>&m;</f>";
}

} // namespace

class TestFilterFile : public FeatureTest
{
    Q_OBJECT

private Q_SLOTS:
    // "Shipped_FilterTest_Filter.xml" stands in the resources of this program too.
    void firstFileThatOpensIsTheOnlyOne_data()
    {
        QTest::addColumn<QStringList>("files"); // below the folder of the application
        QTest::addColumn<QString>("winner");
        const QString ofModel = QStringLiteral("/Shipped_FilterTest_Filter.xml");
        const QString backslash = QStringLiteral("\\Shipped_FilterTest_Filter.xml");
        QTest::newRow("backslash") << QStringList({ofModel, backslash}) << backslash;
        QTest::newRow("resource before next name")
            << QStringList(QStringLiteral("/FilterTest_Filter.xml")) << "resource";
    }
    void firstFileThatOpensIsTheOnlyOne()
    {
        QFETCH(const QStringList, files);
        QFETCH(const QString, winner);
        for (const QString &file : files) {
            write(file, rule("Gain", "<Visibility>" + file.toUtf8() + "</Visibility>"));
        }
        QVERIFY(FilterFile(QStringLiteral("Shipped"), role).apply(*m_collection));
        QCOMPARE(overrides(), winner + QLatin1String("/ /"));
    }

    void whatHoldsIsAppliedAndTheRestLogged_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("applied"); // visibility/access of Gain and of Width
        QTest::addColumn<QString>("entry");
        const QByteArray expert = "<Visibility>Größe </Visibility>"; // the node's business
        const QByteArray locked = "<AccessMode>RO</AccessMode>";
        const auto row = [](const char *title, const QByteArray &content,
                            const char *applied = "/ /",
                            const char *entry = "Failed to parse file .+Filter.xml: .+ "
                                                "\\(\\d+, \\d+\\)") {
            QTest::newRow(title) << content << QString::fromUtf8(applied)
                                 << QString::fromUtf8(entry);
        };
        row("both", rule("Gain", expert + locked), "Größe /RO /", nullptr);
        row("access alone, unknown feature", rule("No", expert) + rule("Width", locked), "/ /RO",
            nullptr);
        row("empty name", "<R><Name/></R>" + rule("Width", locked), "/ /RO",
            "featuretreewidget \\d+ empty name found");
        row("very many", rule("Gain", locked).repeated(20000) + rule("Width", expert),
            "/RO Größe /", nullptr);
        row("truncated", rule("Gain", locked).chopped(3));
        row("not UTF-8", rule("Gain", locked) + "\xff\xfe" + QByteArray("<a>").repeated(200000));
        row("growing entities", growingEntities());
    }
    void whatHoldsIsAppliedAndTheRestLogged()
    {
        QFETCH(const QByteArray, content);
        QFETCH(const QString, applied);
        QFETCH(const QString, entry);
        if (!entry.isEmpty()) {
            expectFault("featureTreeWidget", QRegularExpression(entry));
        }
        QCOMPARE(apply(content), !entry.startsWith(QLatin1String("Failed")));
        QCOMPARE(overrides(), applied);
    }

    void exceptionsAreLoggedAndPassedOver()
    {
        m_collection->onParameter.insert(pathOf("Lost"), Fault::Unknown);
        node("Gain").onOverride = Fault::Unknown;
        for (const char *entry :
             {"could not retrieve \"@CameraDevice/Lost\" from parameter collection",
              "failed to set visibility on node @CameraDevice/Gain",
              "failed to set access mode on node @CameraDevice/Gain"}) {
            expectFault("featureTreeWidget",
                        QRegularExpression(QLatin1String("featuretreewidget \\d+ ")
                                           + QLatin1String(entry)));
        }
        const QByteArray both = "<Visibility>Guru</Visibility><AccessMode>RO</AccessMode>";
        QVERIFY(apply(rule("Lost", both) + rule("Gain", both) + rule("Width", both)));
        QCOMPARE(overrides(), QStringLiteral("/ Guru/RO"));
    }

private:
    void prepare() override
    {
        attach(QStringLiteral("Gain Float 1\nWidth Integer 2\n"));
    }
    void release() override
    {
        for (const QString &path : qAsConst(m_written)) {
            QVERIFY(QFile::remove(path));
        }
        m_written.clear();
    }
    QString overrides()
    {
        const auto text = [this](const char *feature) {
            const QMap<QString, QString> &properties = node(feature).properties;
            return QString(properties.value(QStringLiteral("Visibility")) + QLatin1Char('/')
                           + properties.value(QStringLiteral("AccessMode")));
        };
        return text("Gain") + QLatin1Char(' ') + text("Width");
    }
    void write(const QString &name, const QByteArray &rules)
    {
        const QByteArray content =
            rules.startsWith("<!DOCTYPE") ? rules : QByteArray("<Filter>" + rules + "</Filter>");
        QFile file(QCoreApplication::applicationDirPath() + name);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        m_written.append(file.fileName());
    }
    bool apply(const QByteArray &rules)
    {
        write(QStringLiteral("/Test_FilterTest_Filter.xml"), rules);
        return FilterFile(QStringLiteral("Test"), role).apply(*m_collection);
    }

    QStringList m_written;
};

QTEST_GUILESS_MAIN(TestFilterFile)

#include "tst_filterfile.moc"

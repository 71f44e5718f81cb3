// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "contractmodule.h"
#include "plugin/contract/appcore/baseinfo.h"
#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/core/id.h"
#include "plugin/contract/genapi/invalidargumentexception.h"
#include "plugin/contract/metatypes.h"
#include "plugin/contract/parametercollection/booleanparameter.h"
#include "plugin/contract/parametercollection/booleanparameterdata.h"
#include "plugin/contract/parametercollection/commandparameter.h"
#include "plugin/contract/parametercollection/commandparameterdata.h"
#include "plugin/contract/parametercollection/enumparameter.h"
#include "plugin/contract/parametercollection/enumparameterdata.h"
#include "plugin/contract/parametercollection/floatparameter.h"
#include "plugin/contract/parametercollection/floatparameterdata.h"
#include "plugin/contract/parametercollection/integerparameter.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"
#include "plugin/contract/parametercollection/parametername.h"
#include "plugin/contract/parametercollection/stringparameterdata.h"
#include "support/warningguard.h"

#include <QLibrary>
#include <QSet>
#include <QTest>

using namespace ParameterCollection;
using SnapshotPtr = QSharedPointer<const ParameterData>;

Q_DECLARE_METATYPE(QSharedPointer<ParameterCollection::IParameter>)

class TestContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
    }

    void cleanup()
    {
        m_guard.verify();
    }

    void freshSnapshotsHoldTheirDefaults_data()
    {
        QTest::addColumn<SnapshotPtr>("snapshot");
        QTest::addColumn<int>("type");
        QTest::newRow("plain") << SnapshotPtr(new ParameterData) << 0;
        QTest::newRow("integer") << SnapshotPtr(new IntegerParameterData) << 1;
        QTest::newRow("boolean") << SnapshotPtr(new BooleanParameterData) << 2;
        QTest::newRow("float") << SnapshotPtr(new FloatParameterData) << 3;
        QTest::newRow("command") << SnapshotPtr(new CommandParameterData) << 4;
        QTest::newRow("string") << SnapshotPtr(new StringParameterData) << 5;
        QTest::newRow("enumeration") << SnapshotPtr(new EnumParameterData) << 6;
    }

    void freshSnapshotsHoldTheirDefaults()
    {
        QFETCH(SnapshotPtr, snapshot);
        QFETCH(int, type);
        QCOMPARE(snapshot->type, type);
        QCOMPARE(snapshot->visibility, int(GenApi::UndefinedVisibility));
        QVERIFY(!snapshot->isReadable && !snapshot->isWritable && !snapshot->isImplemented);
        QVERIFY(snapshot->isValid);
        QVERIFY(snapshot->valueText.isEmpty());
    }

    void freshValuesAreZeroAndEmpty()
    {
        const IntegerParameterData integer;
        QVERIFY(integer.value == 0 && integer.minimum == 0 && integer.maximum == 0);
        QVERIFY(integer.increment == 0 && integer.representation.isEmpty());
        const FloatParameterData number;
        QVERIFY(number.value == 0.0 && number.minimum == 0.0 && number.maximum == 0.0);
        QVERIFY(!number.hasIncrement && number.increment == 0.0 && number.displayPrecision == 0);
        QVERIFY(number.representation.isEmpty());
        QVERIFY(!BooleanParameterData().value);
        QVERIFY(!CommandParameterData().isDone);
        const EnumParameterData choice;
        QVERIFY(choice.currentEntry.isEmpty() && choice.entryNames.isEmpty());
        QVERIFY(choice.entryDisplayNames.isEmpty());
    }

    void typesOfSignalsAreRegistered_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const char *name :
             {"Core::AppCoreComponents::BaseInfoPtr", "GenApi::EVisibility",
              "ParameterCollection::ParameterName", "QList<ParameterCollection::ParameterName>",
              "QSharedPointer<const ParameterCollection::ParameterData>",
              "QSharedPointer<ParameterCollection::IParameter>"}) {
            QTest::newRow(name) << QByteArray(name);
        }
    }

    void typesOfSignalsAreRegistered()
    {
        QFETCH(QByteArray, name);
        const int before = QMetaType::type(name.constData());
        QVERIFY(before != QMetaType::UnknownType);
        registerContractMetaTypes();
        QCOMPARE(QMetaType::type(name.constData()), before);
    }

    void kindsAreToldApartAcrossModules_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("casts"); // to integer, boolean, float, command, enumeration
        QTest::newRow("integer") << int(ParameterType::Integer) << QStringLiteral("10000");
        QTest::newRow("boolean") << int(ParameterType::Boolean) << QStringLiteral("01000");
        QTest::newRow("float") << int(ParameterType::Float) << QStringLiteral("00100");
        QTest::newRow("command") << int(ParameterType::Command) << QStringLiteral("00010");
        QTest::newRow("string") << int(ParameterType::String) << QStringLiteral("00000");
        QTest::newRow("enumeration") << int(ParameterType::Enumeration) << QStringLiteral("00001");
    }

    void kindsAreToldApartAcrossModules()
    {
        QFETCH(int, kind);
        QFETCH(QString, casts);
        const auto make = reinterpret_cast<MakeParameter>(m_module.resolve("makeParameter"));
        QVERIFY2(make, qPrintable(m_module.errorString()));
        const QSharedPointer<IParameter> parameter(make(kind));
        QString result;
        for (const bool cast : {!parameter.objectCast<IIntegerParameter>().isNull(),
                                !parameter.objectCast<IBooleanParameter>().isNull(),
                                !parameter.objectCast<IFloatParameter>().isNull(),
                                !parameter.objectCast<ICommandParameter>().isNull(),
                                !parameter.objectCast<IEnumParameter>().isNull()}) {
            result.append(QLatin1Char(cast ? '1' : '0'));
        }
        QCOMPARE(result, casts);
    }

    void exceptionsAreCaughtByKindAcrossModules_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("caught");
        QTest::newRow("GenICam") << int(Generic) << QStringLiteral("GenICam: from afar");
        QTest::newRow("GenICam's argument")
            << int(InvalidArgument) << QStringLiteral("GenICam argument: from afar");
        QTest::newRow("standard") << int(Standard) << QStringLiteral("standard: from afar");
        QTest::newRow("base") << int(Base) << QStringLiteral("base: from afar");
        QTest::newRow("unknown") << int(Unknown) << QStringLiteral("unknown");
    }

    void exceptionsAreCaughtByKindAcrossModules()
    {
        QFETCH(int, kind);
        QFETCH(QString, caught);
        const auto raise = reinterpret_cast<ThrowException>(m_module.resolve("throwException"));
        QVERIFY2(raise, qPrintable(m_module.errorString()));
        QString result;
        try {
            raise(kind);
        } catch (const GenICam::InvalidArgumentException &e) {
            QVERIFY(QByteArray(e.sourceFile()).endsWith("contractmodule.cpp"));
            QVERIFY(e.sourceLine() > 0);
            result = QStringLiteral("GenICam argument: ") + QLatin1String(e.what());
        } catch (const GenICam::GenericException &e) {
            result = QStringLiteral("GenICam: ") + QLatin1String(e.what());
        } catch (const std::exception &e) {
            result = QStringLiteral("standard: ") + QLatin1String(e.what());
        } catch (const Core::Exception::BaseException &e) {
            result = QStringLiteral("base: ") + QLatin1String(e.what());
        } catch (...) {
            result = QStringLiteral("unknown");
        }
        QCOMPARE(result, caught);
    }

    void namesAreValuesComparedByText()
    {
        const ParameterName width(QStringLiteral("@CameraDevice/Width"));
        const ParameterName same(QStringLiteral("@CameraDevice/Width"));
        const ParameterName other(QStringLiteral("@CameraDevice/width"));
        QVERIFY(width == same && !(width != same) && width != other);
        QVERIFY(width < other && !(other < width) && !(width < same));
        QCOMPARE(QSet<ParameterName>({width, same, other}).size(), 2);
        QCOMPARE(width.toString(), QStringLiteral("@CameraDevice/Width"));
        QVERIFY(ParameterName().toString().isEmpty());
    }

    void idsAreValuesAndSuffixesAreJoinedByADot()
    {
        const Core::CId id("Tessera.Widget.User0");
        const Core::CId item = id.withSuffix("menuItem");
        QCOMPARE(item.toString(), QStringLiteral("Tessera.Widget.User0.menuItem"));
        QCOMPARE(id.toString(), QStringLiteral("Tessera.Widget.User0"));
        QVERIFY(item != id && item == Core::CId("Tessera.Widget.User0.menuItem"));
    }

private:
    Tests::WarningGuard m_guard;
    QLibrary m_module {QStringLiteral(CONTRACT_MODULE)};
};

QTEST_GUILESS_MAIN(TestContract)
#include "tst_contract.moc"

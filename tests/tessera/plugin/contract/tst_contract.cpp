// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "contractmodule.h"
#include "plugin/contract/appcore/baseinfo.h"
#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/core/id.h"
#include "plugin/contract/genapi/invalidargumentexception.h"
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

    void freshSnapshotsHoldTheirDefaults()
    {
        const QVector<SnapshotPtr> snapshots {
            SnapshotPtr(new ParameterData),        SnapshotPtr(new IntegerParameterData),
            SnapshotPtr(new BooleanParameterData), SnapshotPtr(new FloatParameterData),
            SnapshotPtr(new CommandParameterData), SnapshotPtr(new StringParameterData),
            SnapshotPtr(new EnumParameterData)};
        for (int type = 0; type < snapshots.size(); ++type) {
            const ParameterData &fresh = *snapshots.at(type);
            QCOMPARE(fresh.type, type);
            QCOMPARE(fresh.visibility, int(GenApi::UndefinedVisibility));
            QVERIFY(!fresh.isReadable && !fresh.isWritable && !fresh.isImplemented);
            QVERIFY(fresh.isValid && fresh.valueText.isEmpty());
        }
        const IntegerParameterData integer;
        QVERIFY(integer.value == 0 && integer.minimum == 0 && integer.maximum == 0);
        QVERIFY(integer.increment == 0 && integer.representation.isEmpty());
        const FloatParameterData number;
        QVERIFY(number.value == 0.0 && number.minimum == 0.0 && number.maximum == 0.0);
        QVERIFY(!number.hasIncrement && number.increment == 0.0 && number.displayPrecision == 0);
        QVERIFY(!BooleanParameterData().value && !CommandParameterData().isDone);
    }

    void typesOfSignalsAreRegistered()
    {
        for (const char *name :
             {"Core::AppCoreComponents::BaseInfoPtr", "GenApi::EVisibility",
              "ParameterCollection::ParameterName", "QList<ParameterCollection::ParameterName>",
              "QSharedPointer<const ParameterCollection::ParameterData>",
              "QSharedPointer<ParameterCollection::IParameter>"}) {
            QVERIFY2(QMetaType::type(name) != QMetaType::UnknownType, name);
        }
    }

    void kindsAreToldApartAcrossModules()
    {
        const auto make = reinterpret_cast<MakeParameter>(m_module.resolve("makeParameter"));
        QVERIFY2(make, qPrintable(m_module.errorString()));
        QStringList casts; // by kind: the classes it can be cast to
        for (const int kind : {1, 2, 3, 4, 5, 6}) {
            const QSharedPointer<IParameter> made(make(kind));
            casts.append(QString::number(kind) % QLatin1Char(':')
                         % QLatin1String(made.objectCast<IIntegerParameter>() ? "integer" : "")
                         % QLatin1String(made.objectCast<IBooleanParameter>() ? "boolean" : "")
                         % QLatin1String(made.objectCast<IFloatParameter>() ? "float" : "")
                         % QLatin1String(made.objectCast<ICommandParameter>() ? "command" : "")
                         % QLatin1String(made.objectCast<IEnumParameter>() ? "enumeration" : ""));
        }
        QCOMPARE(casts.join(QLatin1Char(' ')),
                 QStringLiteral("1:integer 2:boolean 3:float 4:command 5: 6:enumeration"));
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

    void namesAndIdsAreValuesComparedByText()
    {
        const ParameterName width(QStringLiteral("@CameraDevice/Width"));
        const ParameterName same(QStringLiteral("@CameraDevice/Width"));
        const ParameterName other(QStringLiteral("@CameraDevice/width"));
        QVERIFY(width == same && !(width != same) && width != other);
        QVERIFY(width < other && !(other < width) && !(width < same));
        QCOMPARE(QSet<ParameterName>({width, same, other}).size(), 2);
        const Core::CId id("Tessera.Widget.User0");
        QCOMPARE(id.withSuffix("menuItem").toString(),
                 QStringLiteral("Tessera.Widget.User0.menuItem"));
        QVERIFY(id.withSuffix("menuItem") == Core::CId("Tessera.Widget.User0.menuItem"));
        QVERIFY(id.withSuffix("menuItem") != id);
    }

private:
    Tests::WarningGuard m_guard;
    QLibrary m_module {QStringLiteral(CONTRACT_MODULE)};
};

QTEST_GUILESS_MAIN(TestContract)
#include "tst_contract.moc"

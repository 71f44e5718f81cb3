// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

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
#include "plugin/contract/parametercollection/parametercollection.h"
#include "plugin/contract/parametercollection/parametername.h"
#include "plugin/contract/parametercollection/stringparameterdata.h"

#include <QLibrary>
#include <QSet>
#include <QTest>

#include <stdexcept>

using namespace ParameterCollection;
using SnapshotPtr = QSharedPointer<const ParameterData>;

class TestContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freshSnapshotsHoldTheirDefaults()
    {
        const QVector<SnapshotPtr> snapshots {
            SnapshotPtr(new ParameterData),        SnapshotPtr(new IntegerParameterData),
            SnapshotPtr(new BooleanParameterData), SnapshotPtr(new FloatParameterData),
            SnapshotPtr(new CommandParameterData), SnapshotPtr(new StringParameterData),
            SnapshotPtr(new EnumParameterData)};
        for (int type = 0; type < snapshots.size(); ++type) {
            const ParameterData &fresh = *snapshots.at(type);
            QCOMPARE(int(fresh.type), type);
            QCOMPARE(fresh.visibility, int(GenApi::UndefinedVisibility));
            QVERIFY(!fresh.isReadable && !fresh.isWritable && !fresh.isImplemented);
            QVERIFY(fresh.isValid && fresh.valueText.isEmpty());
        }
        const IntegerParameterData integer;
        QVERIFY(integer.minimum == 0 && integer.maximum == 0 && integer.increment == 0);
        const FloatParameterData number;
        QVERIFY(number.minimum == 0.0 && number.maximum == 0.0 && number.displayPrecision == 0);
        QVERIFY(!number.hasIncrement && !CommandParameterData().isDone);
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
        using MakeCollection = IParameterCollection *(*)();
        const auto make = reinterpret_cast<MakeCollection>(m_module.resolve("makeCollection"));
        QVERIFY2(make, qPrintable(m_module.errorString()));
        const QSharedPointer<IParameterCollection> collection(make());
        for (const char kind : {'1', '2', '3', '4', '5', '6'}) {
            const auto one =
                collection->parameter(QLatin1String("@CameraDevice/") + QLatin1Char(kind));
            QCOMPARE(!one.objectCast<IIntegerParameter>().isNull(), kind == '1');
            QCOMPARE(!one.objectCast<IBooleanParameter>().isNull(), kind == '2');
            QCOMPARE(!one.objectCast<IFloatParameter>().isNull(), kind == '3');
            QCOMPARE(!one.objectCast<ICommandParameter>().isNull(), kind == '4');
            QCOMPARE(!one.objectCast<IEnumParameter>().isNull(), kind == '6');
        }
    }

    void exceptionsAreCaughtByKindAcrossModules()
    {
        const auto raise = reinterpret_cast<void (*)(int)>(m_module.resolve("throwException"));
        QVERIFY_EXCEPTION_THROWN(raise(0), GenICam::GenericException);
        QVERIFY_EXCEPTION_THROWN(raise(2), std::invalid_argument);
        QVERIFY_EXCEPTION_THROWN(raise(3), Core::Exception::BaseException);
        try {
            raise(1);
            QFAIL("nothing was thrown");
        } catch (const GenICam::InvalidArgumentException &e) {
            QCOMPARE(e.what(), "from afar");
            QVERIFY(QByteArray(e.sourceFile()).endsWith("contractmodule.cpp"));
        }
    }

    void namesAndIdsAreValuesComparedByText()
    {
        const ParameterName width(QStringLiteral("Width"));
        const ParameterName other(QStringLiteral("width"));
        QVERIFY(width == ParameterName(QStringLiteral("Width")) && width != other);
        QCOMPARE(QSet<ParameterName>({width, width, other}).size(), 2);
        const Core::CId id("Tessera.Widget.User0");
        QVERIFY(id.withSuffix("menuItem") == Core::CId("Tessera.Widget.User0.menuItem"));
    }

private:
    QLibrary m_module {QStringLiteral(CONTRACT_MODULE)};
};

QTEST_GUILESS_MAIN(TestContract)
#include "tst_contract.moc"

// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "metatypes.h"

#include "appcore/baseinfo.h"
#include "genapi/visibility.h"
#include "parametercollection/parameter.h"
#include "parametercollection/parametername.h"

void registerContractMetaTypes()
{
    qRegisterMetaType<Core::AppCoreComponents::BaseInfoPtr>("Core::AppCoreComponents::BaseInfoPtr");
    qRegisterMetaType<GenApi::EVisibility>("GenApi::EVisibility");
    qRegisterMetaType<ParameterCollection::ParameterName>("ParameterCollection::ParameterName");
    qRegisterMetaType<QList<ParameterCollection::ParameterName>>(
        "QList<ParameterCollection::ParameterName>");
    qRegisterMetaType<QSharedPointer<const ParameterCollection::ParameterData>>(
        "QSharedPointer<const ParameterCollection::ParameterData>");
    qRegisterMetaType<QSharedPointer<ParameterCollection::IParameter>>(
        "QSharedPointer<ParameterCollection::IParameter>");
}

Q_CONSTRUCTOR_FUNCTION(registerContractMetaTypes)

// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretreemodelextension.h"

IFeatureTreeModelExtension::IFeatureTreeModelExtension() = default;
IFeatureTreeModelExtension::~IFeatureTreeModelExtension() = default;

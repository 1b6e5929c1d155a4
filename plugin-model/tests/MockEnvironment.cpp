// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/tests/MockEnvironment.h"

MockEnvironment::MockEnvironment() = default;
MockEnvironment::~MockEnvironment() = default;

NiceEnvironment::NiceEnvironment() = default;
NiceEnvironment::~NiceEnvironment() = default;

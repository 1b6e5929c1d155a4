// SPDX-License-Identifier: GPL-3.0-or-later
// The product as its VST3 face is told of it.
#pragma once

#include "QMShell/vst3/Vst3Product.h"

/// The one description, made on first use. [message thread]
const Vst3Product& broltVst3Product();

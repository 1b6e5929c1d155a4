// SPDX-License-Identifier: GPL-3.0-or-later
// The editor that every product has, for whoever asks an environment for it.
#pragma once

#include "widgets/ui/QMPlugInUIFactory.h"

/// To be given to an environment: makes generic editors without a host around them, complete, and
/// attached to the window that is their parent where there is one. [message thread]
std::function<std::shared_ptr<IQMPlugInUI>(INoxPlugIn& plugIn, void* parent)>
genericEditorsOf(QMPlugInUIFactory factory);

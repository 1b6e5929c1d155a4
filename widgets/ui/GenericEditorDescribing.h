// SPDX-License-Identifier: GPL-3.0-or-later
// A plug-in instance in the words of the generic editor. Whoever calls it holds the instance.
// [message thread]
#pragma once

#include "widgets/ui/IGenericEditorContent.h"

class INoxPlugIn;

/// The records are those that displays will follow: one for each meter, or fewer.
[[nodiscard]] GenericEditorDescription
describeForGenericEditor(const INoxPlugIn& plugIn, const std::vector<NoxMeterRecord>& records);

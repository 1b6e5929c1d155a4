// SPDX-License-Identifier: GPL-3.0-or-later
// The label under each control of the editor and the text that explains it, by parameter. The
// wording is the product's and known to users and translators: the release controls are labelled
// "Sust.", and "envelop" is spelled so.
#pragma once

#include "plugin-model/FourCharCode.h"

#include <string>

struct QMBrolt_EditorText {
    FourCharCode id;
    std::string label;
    std::string help;
};

/// Null for a parameter without a labelled control. [any thread]
const QMBrolt_EditorText* QMBrolt_editorText(FourCharCode id);
